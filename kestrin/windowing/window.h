#pragma once

/// @file
/// The framework's window classes. Nothing is drawn: on a platform without a windowing system, a window is an
/// object that receives messages.

#include "kestrin/base/export.h"
#include "kestrin/framework/object.h"
#include "kestrin/windowing/window_types.h"

namespace kestrin {

/// A window. Derive from it to receive what an import reports:
///
///     class Status : public CWnd {
///      public:
///       void SetWindowTextA(const char* text) override { std::cerr << text << '\n'; }
///     };
///
/// Use a window on the thread that created it. Any thread may post messages to it; messages that are still in
/// the queue when the window is destroyed are dropped when they are dispatched.
class KESTRIN_EXPORT CWnd : public CObject {
 public:
  /// Creates a window of the calling thread. The parent may be null; it need not outlive the window.
  explicit CWnd(const CWnd* parent = nullptr);
  ~CWnd() override;

  /// The window with this handle; null if the handle is null or the window has been destroyed.
  [[nodiscard]] static CWnd* FromHandle(HWND handle);
  /// The window's handle, never null.
  [[nodiscard]] HWND GetSafeHwnd() const { return m_hWnd; }

  /// Exchanges data between a dialog and its controls; an import calls it with FALSE when the controls should
  /// show new data. The default does nothing and returns TRUE.
  virtual BOOL UpdateData(BOOL saveAndValidate = true);
  /// Enables or disables input. Returns nonzero if the window was disabled before. The default does nothing
  /// and returns FALSE.
  virtual BOOL EnableWindow(BOOL enable = true);
  /// Sets the window's text. The default does nothing.
  virtual void SetWindowTextA(const char* text);

  /// Receives the messages that are sent or dispatched to the window. The default returns 0.
  virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  const HWND m_hWnd;
};

/// A progress bar. An import sends PBM_SETPOS to its WindowProc, with the percentage in wParam.
class KESTRIN_EXPORT CProgressCtrl : public CWnd {
 public:
  using CWnd::CWnd;
};

/// The handle of the parent window; null if there is none or it has been destroyed.
[[nodiscard]] KESTRIN_EXPORT HWND GetParent(HWND window);

}  // namespace kestrin
