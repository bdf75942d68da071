#include "tool/system/console.h"

#include <fcntl.h>
#include <io.h>
#include <windows.h>

#include <array>
#include <cstdio>
#include <optional>

namespace kestrin::tool {

namespace {

/// The mode of the terminal of standard error, if that is one.
std::optional<DWORD> TerminalMode() {
  DWORD mode = 0;
  if (GetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), &mode) == FALSE) return std::nullopt;
  return mode;
}

void SetTerminalMode(DWORD mode) { SetConsoleMode(GetStdHandle(STD_ERROR_HANDLE), mode); }

}  // namespace

StandardStreams::StandardStreams() : before_{GetConsoleOutputCP(), TerminalMode()} {
  for (std::FILE* stream : std::array{stdin, stdout}) _setmode(_fileno(stream), _O_BINARY);
  SetConsoleOutputCP(CP_UTF8);
  if (before_.mode) SetTerminalMode(*before_.mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING);
}

StandardStreams::~StandardStreams() {
  if (before_.encoding != 0) SetConsoleOutputCP(before_.encoding);
  if (before_.mode) SetTerminalMode(*before_.mode);
}

bool CanRedrawErrors() {
  const std::optional<DWORD> mode = TerminalMode();
  return mode && (*mode & ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}

int TerminalWidth() {
  CONSOLE_SCREEN_BUFFER_INFO info{};
  const bool isKnown = GetConsoleScreenBufferInfo(GetStdHandle(STD_ERROR_HANDLE), &info) != FALSE;
  return isKnown ? info.srWindow.Right - info.srWindow.Left + 1 : 0;
}

}  // namespace kestrin::tool
