#pragma once

/// @file
/// The in-process windowing system: the table of windows and the threads' message queues.

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <deque>
#include <memory>
#include <mutex>
#include <optional>
#include <unordered_map>

#include "kestrin/windowing/window_types.h"

namespace kestrin {

class CWnd;

/// The message queue of a thread. Any thread may post; only the owning thread takes.
class MessageQueue {
 public:
  void Post(const MSG& message);
  /// Returns the first message that the filter accepts.
  template <class Filter>
  [[nodiscard]] std::optional<MSG> Take(bool remove, Filter accepts);

 private:
  std::atomic<bool> waiting_ = false;  // lets the owner find the queue empty without locking
  std::mutex mutex_;
  std::deque<MSG> messages_;
};

template <class Filter>
std::optional<MSG> MessageQueue::Take(bool remove, Filter accepts) {
  if (!waiting_.load(std::memory_order_acquire)) return std::nullopt;
  const std::lock_guard lock(mutex_);
  const auto found = std::find_if(messages_.begin(), messages_.end(), accepts);
  if (found == messages_.end()) return std::nullopt;
  const MSG message = *found;
  if (remove) messages_.erase(found);
  waiting_.store(!messages_.empty(), std::memory_order_release);
  return message;
}

/// The windows of the process. May be used from any thread.
class WindowingSystem {
 public:
  static WindowingSystem& Instance();
  [[nodiscard]] static const std::shared_ptr<MessageQueue>& QueueOfThisThread();

  [[nodiscard]] HWND Register(CWnd* window, HWND parent);
  void Unregister(HWND handle);

  [[nodiscard]] CWnd* WindowOf(HWND handle);
  [[nodiscard]] HWND ParentOf(HWND handle);
  [[nodiscard]] std::shared_ptr<MessageQueue> QueueOf(HWND handle);

 private:
  struct Entry {
    CWnd* window = nullptr;
    HWND parent = nullptr;
    std::shared_ptr<MessageQueue> queue;
  };
  [[nodiscard]] Entry Find(HWND handle);

  std::mutex mutex_;
  std::unordered_map<HWND, Entry> windows_;
  std::uintptr_t lastHandle_ = 0;
};

}  // namespace kestrin
