#pragma once

/// @file
/// The session's side of the talk with the host's dialog: its progress bars, its messages.

#include <cstdint>

#include "kestrin/base/numbers.h"
#include "kestrin/windowing/window.h"

namespace kestrin {

/// Removes and dispatches every message that waits for the calling thread, until none is left.
void PumpMessages();

/// The dialog that a progress bar stands on, null without a bar or a parent.
[[nodiscard]] HWND DialogOf(const CProgressCtrl* bar);

/// Refreshes a dialog, if it still exists.
void RefreshDialog(HWND dialog);

/// A pointer to a window of the host, which a message handler may destroy under way.
template <class WINDOW>
class WatchedWindow {
 public:
  /// The window lives, or the pointer is null.
  explicit WatchedWindow(WINDOW*& pointer)
      : pointer_(pointer), window_(pointer), handle_(pointer == nullptr ? nullptr : pointer->GetSafeHwnd()) {}

  /// Sets the pointer to null if the window has gone.
  void ForgetIfGone() {
    if (pointer_ == window_ && CWnd::FromHandle(handle_) == nullptr) pointer_ = nullptr;
  }

 private:
  WINDOW*& pointer_;
  const WINDOW* window_;
  HWND handle_;
};

/// Moves a reader's progress bar by whole percentages of the lines read. Windows are named by their handles,
/// so that a message handler may destroy them under way.
class ProgressDisplay {
 public:
  ProgressDisplay(const CProgressCtrl* bar, bool disablesBar);

  /// Whether there is a dialog to show progress to.
  [[nodiscard]] bool IsShown() const { return dialog_ != nullptr; }
  void SetLineCount(int lineCount) { lineCount_ = lineCount; }

  /// The line of this number, counted from 1, has been read.
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
