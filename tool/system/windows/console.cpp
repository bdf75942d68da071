#include "tool/system/console.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <cstdio>

namespace kestrin::tool {

StandardStreams::StandardStreams() : encodingBefore_(GetConsoleOutputCP()) {
  for (std::FILE* stream : std::array{stdin, stdout}) _setmode(_fileno(stream), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
}

StandardStreams::~StandardStreams() {
  if (encodingBefore_ != 0) SetConsoleOutputCP(encodingBefore_);
}

bool CanRedrawErrors() {
  HANDLE terminal = GetStdHandle(STD_ERROR_HANDLE);
  DWORD mode = 0;
  return GetConsoleMode(terminal, &mode) != FALSE &&
         SetConsoleMode(terminal, mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != FALSE;
}

int TerminalWidth() {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  const bool isKnown = GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info) != FALSE;
  return isKnown ? info.srWindow.Right - info.srWindow.Left + 1 : 0;
}

}  // namespace kestrin::tool
