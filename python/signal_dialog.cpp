#include "python/signal_dialog.h"

#include <pybind11/pybind11.h>

namespace kestrin::python {

void SignalDialog::Attach(CPC_KESTRIN_GET& session) {
  const auto bar = [this](ImportFile file) { return &bars_[static_cast<std::size_t>(file)]; };
  session.SetProgressPtr(bar(ImportFile::kGeometry), bar(ImportFile::kNeutral), bar(ImportFile::kTraces),
                         bar(ImportFile::kTech));
}

void SignalDialog::StillReading() {
  // Other threads of Python may hold the lock for a while, so it is not asked for often.
  constexpr std::chrono::milliseconds kBetweenLooks{50};
  const auto now = std::chrono::steady_clock::now();
  if (now - looked_ < kBetweenLooks) return;
  looked_ = now;
  const pybind11::gil_scoped_acquire lock;
  if (PyErr_CheckSignals() != 0) throw Interrupted();
}

LRESULT SignalDialog::Bar::WindowProc(UINT /*message*/, WPARAM /*wParam*/, LPARAM /*lParam*/) {
  dialog_.StillReading();
  return 0;
}

}  // namespace kestrin::python
