#pragma once

/// @file
/// The dialog of a host without a desktop: a status text and progress bars on a terminal.

#include <array>
#include <string>

#include "kestrin/session/import_session.h"
#include "kestrin/windowing/window.h"
#include "tool/export_set.h"

namespace kestrin::tool {

/// Shows an import on standard error while it runs, redrawn in place, and wipes it off at the end. Shows
/// nothing when standard error is no terminal.
class TerminalDialog : public CWnd {
 public:
  explicit TerminalDialog(const ExportSet& files);
  ~TerminalDialog() override;

  /// Makes the session report to this dialog, where there is something to see; the dialog must outlive the
  /// import.
  void Attach(CPC_KESTRIN_GET& session);

  BOOL UpdateData(BOOL saveAndValidate) override;

 private:
  class StatusText : public CWnd {
   public:
    explicit StatusText(TerminalDialog& dialog) : CWnd(&dialog), dialog_(dialog) {}
    void SetWindowTextA(const char* text) override;
    std::string text;

   private:
    TerminalDialog& dialog_;
  };

  class Bar : public CProgressCtrl {
   public:
    using CProgressCtrl::CProgressCtrl;
    LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
    int percent = 0;
  };

  void Draw();
  void Wipe();

  const ExportSet& files_;
  bool shown_;
  int linesDrawn_ = 0;
  StatusText status_;
  std::array<Bar, kImportFileCount> bars_;  // in the order of ImportFile
};

}  // namespace kestrin::tool
