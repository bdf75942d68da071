#include "import_dialog.h"

#include <memory>
#include <stdexcept>

#include "resource.h"

namespace {

INT_PTR CALLBACK LetTheSystemHandle(HWND, UINT, WPARAM, LPARAM) { return FALSE; }

HWND CreateDialogOfTheResource() {
  const INITCOMMONCONTROLSEX bars{sizeof(bars), ICC_PROGRESS_CLASS};
  InitCommonControlsEx(&bars);
  return CreateDialogParamA(nullptr, MAKEINTRESOURCEA(IDD_IMPORT), nullptr, &LetTheSystemHandle, 0);
}

}  // namespace

ImportDialog::ImportDialog(HWND dialog) {
  // The dialog is this object from now on: its messages go to WindowProc first.
  if (Attach(dialog) != FALSE) return;
  DestroyWindow(dialog);
  throw std::runtime_error("cannot create the dialog");
}

// After the other constructor the object is complete, so its destructor runs if a control is missing.
ImportDialog::ImportDialog() : ImportDialog(CreateDialogOfTheResource()) {
  AttachControl(status_, IDC_STATUS);
  AttachControl(tech_, IDC_TECH);
  AttachControl(neutral_, IDC_NEUTRAL);
  AttachControl(geometry_, IDC_GEOMETRY);
  AttachControl(traces_, IDC_TRACES);
}

ImportDialog::~ImportDialog() { DestroyWindow(Detach()); }

void ImportDialog::AttachControl(kestrin::CWnd& control, int id) {
  if (control.Attach(GetDlgItem(GetSafeHwnd(), id)) == FALSE)
    throw std::runtime_error("a control is missing");
}

bool ImportDialog::Import(kestrin::CPC_KESTRIN_GET& session, const std::string& files) {
  session.vSetTechFilePath(files + ".tech");
  session.vSetNeutralFilePath(files + ".neutral");
  session.vSetGeomFilePath(files + ".geometry");
  session.vSetTraceFilePath(files + ".traces");
  session.m_pStatusWnd = &status_;
  session.SetProgressPtr(&geometry_, &neutral_, &traces_, &tech_);
  const auto end = [&](kestrin::CPC_KESTRIN_GET* ended) {
    isImporting_ = false;
    ended->m_pStatusWnd = nullptr;  // the session may live longer than the dialog
    ended->SetProgressPtr(nullptr, nullptr, nullptr, nullptr);
  };
  bool isComplete = true;
  isImporting_ = true;
  try {
    const std::unique_ptr<kestrin::CPC_KESTRIN_GET, decltype(end)> whileImporting(&session, end);
    session.vParse();
  } catch (const Cancelled&) {
    isComplete = false;
  }
  status_.SetWindowTextA(isComplete ? "Complete" : "Cancelled");
  return isComplete;
}

LRESULT ImportDialog::WindowProc(UINT message, WPARAM wParam, LPARAM lParam) {
  if (message == WM_COMMAND && LOWORD(wParam) == IDCANCEL) {  // also when the dialog is closed
    if (isImporting_) throw Cancelled();                      // leaves vParse
    isClosed_ = true;
    return 0;
  }
  return CWnd::WindowProc(message, wParam, lParam);
}

void ImportDialog::WaitUntilClosed() {
  MSG message;
  while (!isClosed_ && GetMessageA(&message, nullptr, 0, 0) > 0) {
    if (IsDialogMessageA(GetSafeHwnd(), &message) != FALSE) continue;
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
}
