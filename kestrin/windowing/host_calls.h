#pragma once

/// @file
/// How the library calls the windowing system, and through it the host. An exception of a host's handler
/// comes out of these functions.

#include "kestrin/windowing/window_types.h"

namespace kestrin {

/// Dispatches the messages in the calling thread's queue until it is empty.
void PumpMessages();

/// Sends a message to a window, which may have been destroyed.
void Send(HWND window, UINT message, WPARAM wParam);

/// Shows a message box with the process's handler, or else the system's.
int ShowMessageBox(HWND owner, const char* text, const char* caption, UINT style);

/// Shows the message box of the system.
int ShowSystemBox(HWND owner, const char* text, const char* caption, UINT style);

}  // namespace kestrin
