#include "kestrin/windowing/host_calls.h"

#include "kestrin/windowing/windows/keep_exceptions.h"

namespace kestrin {

void PumpMessages() {
  const auto dispatchOne = [] {
    MSG message;
    if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) == FALSE) return false;
    if (message.message == WM_QUIT) {  // for the host's own loop
      PostQuitMessage(static_cast<int>(message.wParam));
      return false;
    }
    TranslateMessage(&message);
    DispatchMessageA(&message);
    return true;
  };
  while (CallSystem(dispatchOne)) {
  }
}

void Send(HWND window, UINT message, WPARAM wParam) {
  CallSystem([&] { return SendMessageA(window, message, wParam, 0); });
}

int ShowSystemBox(HWND owner, const char* text, const char* caption, UINT style) {
  return CallSystem([&] { return MessageBoxA(owner, text, caption, style); });
}

}  // namespace kestrin
