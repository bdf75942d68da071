#include "kestrin/session/dialog.h"

#include "kestrin/windowing/host_calls.h"
#include "kestrin/windowing/messages.h"

namespace kestrin {

HWND DialogOf(const CProgressCtrl* bar) { return bar == nullptr ? nullptr : GetParent(bar->GetSafeHwnd()); }

void RefreshDialog(HWND dialog) {
  if (CWnd* window = CWnd::FromHandle(dialog)) window->UpdateData(FALSE);
}

ProgressDisplay::ProgressDisplay(const CProgressCtrl* bar, bool disablesBar)
    : bar_(bar == nullptr ? nullptr : bar->GetSafeHwnd()),
      dialog_(DialogOf(bar)),
      disablesBar_(disablesBar) {}

void ProgressDisplay::Show(int percent) {
  Send(bar_, PBM_SETPOS, static_cast<WPARAM>(percent));
  if (CWnd* bar = disablesBar_ ? CWnd::FromHandle(bar_) : nullptr) bar->EnableWindow(FALSE);
  RefreshDialog(dialog_);
  lastPercent_ = percent;
}

}  // namespace kestrin
