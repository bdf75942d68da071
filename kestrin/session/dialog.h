#pragma once

/// @file
/// What the session does with the host's windows: moves progress bars, refreshes the dialog.

#include <cstdint>

#include "kestrin/base/numbers.h"
#include "kestrin/windowing/window.h"

namespace kestrin {

/// The dialog of a progress bar, which is the bar's parent; null without a bar or a parent.
[[nodiscard]] HWND DialogOf(const CProgressCtrl* bar);

/// Refreshes a dialog if it still exists.
void RefreshDialog(HWND dialog);

/// A pointer to a window of the host, which a message handler may destroy during an import.
template <class Window>
class WatchedWindow {
 public:
  /// Watches the pointer's window, which exists, or a null pointer.
  explicit WatchedWindow(Window*& pointer)
      : pointer_(pointer), window_(pointer), handle_(pointer == nullptr ? nullptr : pointer->GetSafeHwnd()) {}

  /// Sets the pointer to null if the window has been destroyed, unless it points elsewhere by now.
  void ResetIfDestroyed() {
    if (pointer_ == window_ && CWnd::FromHandle(handle_) != window_) pointer_ = nullptr;
  }

 private:
  Window*& pointer_;
  const Window* window_;
  HWND handle_;
};

/// Moves a reader's progress bar each time the whole percentage of the lines read changes. It keeps handles,
/// not pointers, because a message handler may destroy the windows during an import.
class ProgressDisplay {
 public:
  ProgressDisplay(const CProgressCtrl* bar, bool disablesBar);

  /// Whether there is a dialog to show progress to.
  [[nodiscard]] bool IsShown() const { return dialog_ != nullptr; }
  void SetLineCount(int lineCount) { lineCount_ = lineCount; }

  /// Call after reading the line with this number, counted from 1.
  void LineRead(std::int64_t number) {
    if (!IsShown()) return;
    const int percent = ToInt(static_cast<double>(number) / lineCount_ * 100.0);
    if (percent != lastPercent_) Show(percent);
  }

 private:
  void Show(int percent);

  HWND bar_;
  HWND dialog_;
  bool disablesBar_;
  double lineCount_ = 1.0;
  int lastPercent_ = 0;
};

}  // namespace kestrin
