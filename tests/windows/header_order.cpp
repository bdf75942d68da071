// A host that includes windows.h, with all that it has, after the library's headers; or before them, if the
// build says so.

#include <kestrin/kestrin.h>
#include <shellapi.h>
#include <windows.h>

#include <algorithm>
#include <memory>
#include <type_traits>

namespace {

static_assert(std::is_same_v<kestrin::HWND, ::HWND> && std::is_same_v<kestrin::MSG, ::MSG>);
static_assert(std::is_same_v<kestrin::BOOL, ::BOOL> && std::is_same_v<kestrin::LRESULT, ::LRESULT>);

/// Half of the test is that the names mean the same here, in the library's namespace and in its methods.
class Bar : public kestrin::CProgressCtrl {
 public:
  using CProgressCtrl::CProgressCtrl;
  LRESULT WindowProc(UINT message, WPARAM wParam, LPARAM lParam) override {
    if (message == PBM_SETPOS) position = static_cast<int>(wParam);
    return CProgressCtrl::WindowProc(message, wParam, lParam);
  }
  int position = 0;
};

}  // namespace

int main() {
  using namespace kestrin;
  CWnd dialog;
  Bar bar(&dialog);
  const HWND handle = bar.GetSafeHwnd();
  SendMessageA(handle, PBM_SETPOS, 7, 0);
  PostMessageA(handle, PBM_SETPOS, 8, 0);
  MSG message;
  while (PeekMessageA(&message, handle, 0, 0, PM_REMOVE) != FALSE) {
    if (bar.position != 7) return 1;
    TranslateMessage(&message);
    DispatchMessageA(&message);
  }
  if (bar.position != 8 || GetParent(handle) != dialog.GetSafeHwnd()) return 2;
  dialog.SetWindowText("text");  // a macro of windows.h
  if (GetWindowTextLengthA(dialog.GetSafeHwnd()) != 4) return 3;
  if (ShellExecuteA(nullptr, nullptr, "", nullptr, nullptr, std::min(SW_HIDE, 0)) == nullptr) return 4;

  // An exception of the library, and the memory of what it returns, cross into this program.
  CString text("text");
  try {
    static_cast<void>(text.GetAt(99));
    return 5;
  } catch (const CInvalidArgException&) {
  }
  CArrayPointD points;
  CPointD point;
  points.Add(point);
  const std::unique_ptr<CArrayPointD> clone(points.clone());  // of a class that has a template as its base
  if (clone->GetSize() != 1) return 6;
  const Board board = ReadBoard(BoardModels{});
  return board.nets.empty() ? 0 : 7;
}
