#pragma once

/// @file
/// Sending and posting window messages, without a windowing system. Every thread has its own message queue.

#include "kestrin/base/export.h"
#include "kestrin/windowing/window_types.h"

namespace kestrin {

/// Calls the window's WindowProc on the calling thread and returns its result; returns 0 if there is no such
/// window.
KESTRIN_EXPORT LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Puts a message into the queue of the thread that created the window, or of the calling thread if the
/// window is null. May be called from any thread. Returns FALSE if there is no such window.
KESTRIN_EXPORT BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Copies the first message of the calling thread's queue to the argument; PM_REMOVE also removes it from the
/// queue. Returns FALSE at once if no message is waiting. A window that is not null restricts this to the
/// messages for that window; firstMessage and lastMessage restrict it to a range of message numbers unless
/// both are 0.
[[nodiscard]] KESTRIN_EXPORT BOOL PeekMessageA(MSG* message, HWND window, UINT firstMessage, UINT lastMessage,
                                               UINT flags);

/// Does nothing and returns FALSE: without a keyboard there are no keystrokes to translate.
KESTRIN_EXPORT BOOL TranslateMessage(const MSG* message);

/// Calls the WindowProc of the message's window and returns its result; returns 0 if there is no such window.
KESTRIN_EXPORT LRESULT DispatchMessageA(const MSG* message);

/// The handle of the parent window; null if the window has no parent, or the parent has been destroyed.
[[nodiscard]] KESTRIN_EXPORT HWND GetParent(HWND window);

/// Shows a message box with the process's handler (SetMessageBoxHandler) and returns what the handler
/// returns. Without a handler it prints "caption: text" to standard error and returns IDOK.
KESTRIN_EXPORT int MessageBoxA(HWND owner, const char* text, const char* caption, UINT style);

}  // namespace kestrin
