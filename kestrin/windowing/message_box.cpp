#include "kestrin/windowing/message_box.h"

#include <mutex>
#include <utility>

#include "kestrin/windowing/host_calls.h"

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

int ShowMessageBox(HWND owner, const char* text, const char* caption, UINT style) {
  MessageBoxHandler handler;
  {
    const std::lock_guard lock(Registered().mutex);
    handler = Registered().handler;
  }
  return handler ? handler(owner, text, caption, style) : ShowSystemBox(owner, text, caption, style);
}

MessageBoxHandler SetMessageBoxHandler(MessageBoxHandler handler) {
  const std::lock_guard lock(Registered().mutex);
  return std::exchange(Registered().handler, std::move(handler));
}

}  // namespace kestrin
