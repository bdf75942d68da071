#include "kestrin/windowing/messages.h"

#include "kestrin/windowing/host_calls.h"
#include "kestrin/windowing/in_process/windowing_system.h"
#include "kestrin/windowing/window.h"

namespace kestrin {

LRESULT SendMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  CWnd* receiver = CWnd::FromHandle(window);
  return receiver == nullptr ? 0 : receiver->WindowProc(message, wParam, lParam);
}

BOOL PostMessageA(HWND window, UINT message, WPARAM wParam, LPARAM lParam) {
  const auto queue =
      window == nullptr ? WindowingSystem::QueueOfThisThread() : WindowingSystem::Instance().QueueOf(window);
  if (queue == nullptr) return FALSE;
  queue->Post({window, message, wParam, lParam});
  return TRUE;
}

BOOL PeekMessageA(MSG* message, HWND window, UINT firstMessage, UINT lastMessage, UINT flags) {
  const bool anyMessage = firstMessage == 0 && lastMessage == 0;
  const auto next =
      WindowingSystem::QueueOfThisThread()->Take((flags & PM_REMOVE) != 0, [&](const MSG& waiting) {
        return (window == nullptr || waiting.hwnd == window) &&
               (anyMessage || (waiting.message >= firstMessage && waiting.message <= lastMessage));
      });
  if (!next) return FALSE;
  *message = *next;
  return TRUE;
}

BOOL TranslateMessage(const MSG* /*message*/) { return FALSE; }

LRESULT DispatchMessageA(const MSG* message) {
  return SendMessageA(message->hwnd, message->message, message->wParam, message->lParam);
}

HWND GetParent(HWND window) { return WindowingSystem::Instance().ParentOf(window); }

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT style) {
  return ShowMessageBox(owner, text, caption, style);
}

}  // namespace kestrin
