#pragma once

/// @file
/// The system's functions for messages. An exception must not leave a handler that one of them calls: only
/// during an import is it kept and raised again.

#include "kestrin/windowing/window_types.h"

namespace kestrin {

using ::DispatchMessageA;
using ::GetParent;
using ::MessageBoxA;
using ::PeekMessageA;
using ::PostMessageA;
using ::SendMessageA;
using ::TranslateMessage;

}  // namespace kestrin
