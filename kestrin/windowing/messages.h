#pragma once

/// @file
/// Sending and queueing window messages. Every thread has a queue of its own.

#include "kestrin/base/export.h"
#include "kestrin/windowing/window_types.h"

namespace kestrin {

/// Calls the window's WindowProc and returns its answer; 0 when there is no such window.
KESTRIN_EXPORT LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Queues a message for the thread that made the window; for the calling thread when the window is null. May
/// be called from any thread. FALSE when there is no such window.
KESTRIN_EXPORT BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam);

/// Takes the first message out of the calling thread's queue, or only looks at it without PM_REMOVE; FALSE
/// when none waits. A window other than null and a range other than 0, 0 narrow the search.
[[nodiscard]] KESTRIN_EXPORT BOOL PeekMessageA(MSG* message, HWND window, UINT firstMessage, UINT lastMessage,
                                               UINT flags);

/// Would turn key strokes into characters; there are none here, so FALSE.
KESTRIN_EXPORT BOOL TranslateMessage(const MSG* message);

/// Calls the WindowProc of the message's window; 0 when there is no such window.
KESTRIN_EXPORT LRESULT DispatchMessageA(const MSG* message);

}  // namespace kestrin
