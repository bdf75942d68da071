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

SharedHandler& Shown() {
  static SharedHandler shown;
  return shown;
}

}  // namespace

int MessageBoxA(HWND owner, const char* text, const char* caption, UINT style) {
  MessageBoxHandler handler;
  {
    const std::lock_guard lock(Shown().mutex);
    handler = Shown().handler;
  }
  if (handler) return handler(owner, text, caption, style);
  std::fprintf(stderr, "%s: %s\n", caption, text);
  return IDOK;
}

MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler) {
  const std::lock_guard lock(Shown().mutex);
  return std::exchange(Shown().handler, std::move(handler));
}

}  // namespace kestrin
