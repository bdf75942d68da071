#pragma once

/// @file
/// A dialog on the terminal: a status line and progress bars.

#include <array>
#include <string>

#include "kestrin/windowing/window.h"
#include "tool/export_set.h"
#include "tool/import_dialog.h"

namespace kestrin::tool {

/// Shows the progress of an import on standard error, redrawn in place, and erases it at the end. Shows
/// nothing if standard error is not a terminal.
class TerminalDialog : public CWnd, public ImportDialog {
 public:
  explicit TerminalDialog(const ExportSet& files);
  ~TerminalDialog() override;

  /// Attaches the dialog if it shows anything.
  void Attach(CPC_KESTRIN_GET& session) override;

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
