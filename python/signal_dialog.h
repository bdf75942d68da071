#pragma once

/// @file
/// Ending an import by Ctrl-C.

#include <array>
#include <chrono>

#include "kestrin/session/import_report.h"
#include "kestrin/windowing/window.h"
#include "tool/import_dialog.h"

namespace kestrin::python {

/// Thrown when a signal handler raised an exception of Python, which is set in this thread.
struct Interrupted {};

/// A dialog that shows nothing. While an import runs without Python's lock, it looks for signals now and then
/// and ends the import with Interrupted.
class SignalDialog : public CWnd, public tool::ImportDialog {
 public:
  void Attach(CPC_KESTRIN_GET& session) override;
  void StillReading() override;

 private:
  /// A progress bar: it is moved while a file is read.
  class Bar : public CProgressCtrl {
   public:
    explicit Bar(SignalDialog* dialog) : CProgressCtrl(dialog), dialog_(*dialog) {}
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;

   private:
    SignalDialog& dialog_;
  };

  std::array<Bar, kImportFileCount> bars_{Bar(this), Bar(this), Bar(this), Bar(this)};
  std::chrono::steady_clock::time_point looked_ = std::chrono::steady_clock::now();
};

}  // namespace kestrin::python
