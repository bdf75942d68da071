#include "kestrin/windowing/in_process/windowing_system.h"

namespace kestrin {

void MessageQueue::Post(const MSG& message) {
  const std::lock_guard lock(mutex_);
  messages_.push_back(message);
  waiting_.store(true, std::memory_order_release);
}

WindowingSystem& WindowingSystem::Instance() {
  static WindowingSystem system;
  return system;
}

const std::shared_ptr<MessageQueue>& WindowingSystem::QueueOfThisThread() {
  thread_local const auto queue = std::make_shared<MessageQueue>();
  return queue;
}

HWND WindowingSystem::Register(CWnd* window, HWND parent) {
  const std::lock_guard lock(mutex_);
  // NOLINTNEXTLINE(performance-no-int-to-ptr): a handle is a number and never dereferenced
  const auto handle = reinterpret_cast<HWND>(++lastHandle_);
  windows_.emplace(handle, Entry{window, parent, QueueOfThisThread()});
  return handle;
}

void WindowingSystem::Unregister(HWND handle) {
  const std::lock_guard lock(mutex_);
  windows_.erase(handle);
}

CWnd* WindowingSystem::WindowOf(HWND handle) { return Find(handle).window; }

HWND WindowingSystem::ParentOf(HWND handle) {
  const HWND parent = Find(handle).parent;
  return WindowOf(parent) == nullptr ? nullptr : parent;
}

std::shared_ptr<MessageQueue> WindowingSystem::QueueOf(HWND handle) { return Find(handle).queue; }

WindowingSystem::Entry WindowingSystem::Find(HWND handle) {
  const std::lock_guard lock(mutex_);
  const auto found = windows_.find(handle);
  return found == windows_.end() ? Entry{} : found->second;
}

}  // namespace kestrin
