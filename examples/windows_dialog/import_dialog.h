#pragma once

#include <kestrin/kestrin.h>

#include <string>

/// A dialog of the system that shows an import and can cancel it.
class ImportDialog : public kestrin::CWnd {
 public:
  ImportDialog();
  ImportDialog(const ImportDialog&) = delete;
  ImportDialog& operator=(const ImportDialog&) = delete;
  ~ImportDialog() override;

  /// Imports the files whose paths are this one with the four endings. Returns false if the user cancelled.
  bool Import(kestrin::CPC_KESTRIN_GET& session, const std::string& files);

  /// Waits until the user closes the dialog.
  void WaitUntilClosed();

 private:
  struct Cancelled {};

  explicit ImportDialog(HWND dialog);
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override;
  void AttachControl(kestrin::CWnd& control, int id);

  bool isImporting_ = false;
  bool isClosed_ = false;
  kestrin::CWnd status_;
  kestrin::CProgressCtrl tech_;
  kestrin::CProgressCtrl neutral_;
  kestrin::CProgressCtrl geometry_;
  kestrin::CProgressCtrl traces_;
};
