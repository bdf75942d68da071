#pragma once

/// @file
/// The framework's window objects. On a platform without a windowing system a window is just an object that
/// receives messages; a host takes part by deriving from CWnd.

#include "kestrin/base/export.h"
#include "kestrin/framework/object.h"
#include "kestrin/windowing/window_types.h"

namespace kestrin {

/// A window. It belongs to the thread that made it, which alone uses it; any thread may post messages to it.
/// Messages that still wait when it goes then go nowhere.
class KESTRIN_EXPORT CWnd : public CObject {
 public:
  /// A window of the calling thread; the parent is asked for its handle only.
  explicit CWnd(const CWnd* parent = nullptr);
  ~CWnd() override;

  /// The window object of a handle; null for a null handle and for a window that is gone.
  [[nodiscard]] static CWnd* FromHandle(HWND handle);
  /// The handle, never null as long as the window lives.
  [[nodiscard]] HWND GetSafeHwnd() const { return m_hWnd; }

  /// Exchanges data between a dialog and its controls: FALSE refreshes the controls. The base does nothing.
  virtual BOOL UpdateData(BOOL saveAndValidate = true);
  /// Enables or disables input; returns nonzero when the window was disabled before. The base does nothing.
  virtual BOOL EnableWindow(BOOL enable = true);
  /// Sets the window's text. The base does nothing.
  virtual void SetWindowTextA(const char* text);

  /// Receives the messages that are sent or dispatched to the window. The base answers 0 to all.
  virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

 private:
  const HWND m_hWnd;
};

/// A progress bar: PBM_SETPOS messages arrive at its WindowProc.
class KESTRIN_EXPORT CProgressCtrl : public CWnd {
 public:
  using CWnd::CWnd;
};

/// The handle of the parent window, null when there is none.
[[nodiscard]] KESTRIN_EXPORT HWND GetParent(HWND window);

}  // namespace kestrin
