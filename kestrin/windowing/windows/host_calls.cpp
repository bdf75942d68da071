#include "kestrin/windowing/host_calls.h"

#include <optional>

#include "kestrin/windowing/windows/keep_exceptions.h"

namespace kestrin {

void PumpMessages() {
  std::optional<int> quit;  // is for the host's own loop
  const auto dispatchOne = [&quit] {
    MSG message;
    if (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) == FALSE) return false;
    if (message.message == WM_QUIT) {
      quit = static_cast<int>(message.wParam);
      return true;
    }
    TranslateMessage(&message);
    DispatchMessageA(&message);
    return true;
  };
  while (CallSystem(dispatchOne)) {
  }
  if (quit) PostQuitMessage(*quit);
}

void Send(HWND window, UINT message, WPARAM wParam) {
  CallSystem([&] { return SendMessageA(window, message, wParam, 0); });
}

int ShowSystemBox(HWND owner, const char* text, const char* caption, UINT style) {
  return CallSystem([&] { return MessageBoxA(owner, text, caption, style); });
}

}  // namespace kestrin
