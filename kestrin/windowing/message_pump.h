#pragma once

/// @file
/// Letting the host's messages through while a file is read.

#ifdef _WIN32
#include "kestrin/windowing/windows/message_pump.h"
#else
#include "kestrin/windowing/in_process/message_pump.h"
#endif
