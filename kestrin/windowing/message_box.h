#pragma once

/// @file
/// The modal message box.

#include <functional>

#include "kestrin/base/export.h"
#include "kestrin/windowing/window_types.h"

namespace kestrin {

/// Shows a box and returns the button that closed it, IDOK when there is but one.
using MessageBoxHandler = std::function<int(HWND owner, const char* text, const char* caption, UINT style)>;

/// Shows a message box through the handler of the process. Without one, caption and text go to standard error
/// and the answer is IDOK.
KESTRIN_EXPORT int MessageBoxA(HWND owner, const char* text, const char* caption, UINT style);

/// Sets how the process shows message boxes; an empty handler brings the default back. Returns the handler
/// that it replaces. The handler is called on the thread that shows the box.
KESTRIN_EXPORT MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler);

}  // namespace kestrin
