#include "kestrin/windowing/message_box.h"

#include <cstdio>
#include <mutex>
#include <utility>

namespace kestrin {
namespace {

struct SharedHandler {
  std::mutex mutex;
  MessageBoxHandler handler;
};

SharedHandler& Registered() {
  static SharedHandler registered;
  return registered;
}

}  // namespace

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT style) {
  MessageBoxHandler handler;
  {
    const std::lock_guard lock(Registered().mutex);
    handler = Registered().handler;
  }
  if (handler) return handler(owner, text, caption, style);
  std::fprintf(stderr, "%s: %s\n", caption, text);
  return IDOK;
}

MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler) {
  const std::lock_guard lock(Registered().mutex);
  return std::exchange(Registered().handler, std::move(handler));
}

}  // namespace kestrin
