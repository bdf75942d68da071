#pragma once

/// @file
/// The message box, and how a host replaces it.

#include <functional>

#include "kestrin/base/export.h"
#include "kestrin/windowing/window_types.h"

namespace kestrin {

/// Shows a message box and returns the button that closed it: IDOK if the box has one button only.
using MessageBoxHandler = std::function<int(HWND owner, const char* text, const char* caption, UINT style)>;

/// Shows a message box with the process's handler and returns what the handler returns. Without a handler it
/// prints "caption: text" to standard error and returns IDOK.
KESTRIN_EXPORT int MessageBoxA(HWND owner, const char* text, const char* caption, UINT style);

/// Sets the process's handler for message boxes and returns the previous one. An empty handler restores the
/// default. May be called from any thread. The handler runs on the thread that calls MessageBoxA:
///
///     SetMessageBoxHandler([](HWND, const char* text, const char*, UINT) {
///       log << text << '\n';
///       return IDOK;
///     });
KESTRIN_EXPORT MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler);

}  // namespace kestrin
