#pragma once

/// @file
/// The framework's window classes. On Windows they stand for windows of the system. On a platform without a
/// windowing system nothing is drawn: a window is an object that receives messages.

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
/// On Windows, attach it to a window of your dialog:
///
///     CProgressCtrl bar;
///     bar.Attach(GetDlgItem(dialog, IDC_BAR));
///
/// Use a window on the thread that created it. Any thread may post messages to it; messages that are still in
/// the queue when the window is destroyed are dropped.
class KESTRIN_EXPORT CWnd : public CObject {
 public:
  /// Creates a window of the calling thread, which nobody sees. The parent may be null; it need not outlive
  /// the window.
  explicit CWnd(const CWnd* parent = nullptr);
  ~CWnd() override;

  /// The window with this handle; null if the handle is null or the window has been destroyed. On Windows
  /// also null if no CWnd stands for the handle.
  [[nodiscard]] static CWnd* FromHandle(HWND handle);
  /// The window's handle. Null only on Windows: if the system could not create the window, and once that has
  /// been detached or destroyed, which it is with its parent.
  [[nodiscard]] HWND GetSafeHwnd() const { return m_hWnd; }

#ifdef _WIN32
  /// Stands for a window of the system from now on: its messages go to WindowProc first, all but the last,
  /// WM_NCDESTROY. The window that the object stood for is detached. The attached window stays yours: the
  /// destructor only detaches it. Returns FALSE, and changes nothing, if there is no such window, or it is of
  /// another thread, or a CWnd stands for it already.
  BOOL Attach(HWND window);
  /// Stands for no window any more. Returns the window that was attached.
  HWND Detach();
#endif

  /// Exchanges data between a dialog and its controls; an import calls it with FALSE when the controls should
  /// show new data. On Windows, a dialog that no CWnd stands for is not told; its bars move all the same. The
  /// default does nothing and returns TRUE.
  virtual BOOL UpdateData(BOOL saveAndValidate = true);
  /// Enables or disables input. Returns nonzero if the window was disabled before. Without a windowing
  /// system, the default does nothing and returns FALSE.
  virtual BOOL EnableWindow(BOOL enable = true);
  /// Sets the window's text. Without a windowing system, the default does nothing.
  virtual void SetWindowTextA(const char* text);

  /// Receives the messages that are sent or dispatched to the window. The default returns 0; on Windows it
  /// lets the system's window handle the message, so call it for all that you do not handle yourself.
  /// An exception that leaves a handler during an import leaves the import. On Windows it also comes out of
  /// EnableWindow and SetWindowTextA above; at other times it would end the program.
  virtual LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam);

 private:
#ifdef _WIN32
  struct Trampoline;
  HWND m_hWnd = nullptr;
  bool m_bOwnsWindow = false;
#else
  const HWND m_hWnd;
#endif
};

/// A progress bar. An import sends PBM_SETPOS to its WindowProc, with the percentage in wParam.
class KESTRIN_EXPORT CProgressCtrl : public CWnd {
 public:
  using CWnd::CWnd;
};

}  // namespace kestrin
