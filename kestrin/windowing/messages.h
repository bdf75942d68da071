#pragma once

/// @file
/// Sending and posting window messages. On Windows these functions are the system's own.

#ifdef _WIN32
#include "kestrin/windowing/windows/messages.h"
#else
#include "kestrin/windowing/in_process/messages.h"
#endif
