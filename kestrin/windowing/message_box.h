#pragma once

/// @file
/// How a host replaces the library's message boxes.

#include <functional>

#include "kestrin/base/export.h"
#include "kestrin/windowing/messages.h"
#include "kestrin/windowing/window_types.h"

namespace kestrin {

/// Shows a message box and returns the button that closed it: IDOK if the box has one button only.
using MessageBoxHandler = std::function<int(HWND owner, const char* text, const char* caption, UINT style)>;

/// Sets the process's handler for the library's message boxes and returns the previous one. An empty handler
/// restores the default: the system's box on Windows, elsewhere a line on standard error. May be called from
/// any thread. The handler runs on the thread that shows the box:
///
///     SetMessageBoxHandler([](HWND, const char* text, const char*, UINT) {
///       log << text << '\n';
///       return IDOK;
///     });
KESTRIN_EXPORT MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler);

}  // namespace kestrin
