#include "kestrin/windowing/host_calls.h"

#include <cstdio>

#include "kestrin/windowing/messages.h"

namespace kestrin {

void PumpMessages() {
  MSG message;
  while (PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE) != FALSE) DispatchMessageA(&message);
}

void Send(HWND window, UINT message, WPARAM wParam) { SendMessageA(window, message, wParam, 0); }

int ShowSystemBox(HWND /*owner*/, const char* text, const char* caption, UINT /*style*/) {
  std::fprintf(stderr, "%s: %s\n", caption, text);
  return IDOK;
}

}  // namespace kestrin
