#pragma once

/// @file
/// The windowing system's types and constants that imports and hosts need. On Windows they are the system's
/// own: its types are also in namespace kestrin, its constants are macros.

#ifdef _WIN32
#include "kestrin/windowing/windows/window_types.h"
#else
#include "kestrin/windowing/in_process/window_types.h"
#endif
