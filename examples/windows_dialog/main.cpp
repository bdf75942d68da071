// A host with a real dialog: imports an export set, shows progress in four bars, and can be cancelled.
// Its argument is the path of the four files without their endings.

#include <exception>
#include <stdexcept>

#include "import_dialog.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int) {
  try {
    if (__argc != 2) throw std::runtime_error("usage: windows_dialog FILES");
    ImportDialog dialog;
    kestrin::CPC_KESTRIN_GET session;
    const bool isComplete = dialog.Import(session, __argv[1]);
    dialog.WaitUntilClosed();
    return isComplete ? 0 : 1;
  } catch (const std::exception& error) {
    MessageBoxA(nullptr, error.what(), "windows_dialog", MB_OK | MB_ICONWARNING);
    return 2;
  }
}
