#include "python/interruptible.h"

#include <chrono>
#include <future>
#include <system_error>
#include <utility>
#include <vector>

namespace kestrin::python {
namespace {

namespace py = pybind11;

using Running = std::future<void>;

/// Waits for an action for a while; runs it if it has no thread. Returns whether it has ended.
bool EndsWithin(std::chrono::milliseconds time, const Running& running) {
  if (running.wait_for(time) == std::future_status::timeout) return false;
  running.wait();
  return true;
}

/// The actions that were left alone. Use them with Python's lock.
std::vector<Running>& LeftAlone() {
  static std::vector<Running> running;
  return running;
}

void LeaveAlone(Running running) {
  std::erase_if(LeftAlone(), [](const Running& left) { return EndsWithin({}, left); });
  LeftAlone().push_back(std::move(running));
}

/// Starts an action in a thread of its own. Without threads, it runs when it is waited for.
Running Start(const std::function<void()>& action) {
  try {
    return std::async(std::launch::async, action);
  } catch (const std::system_error&) {
    return std::async(std::launch::deferred, action);
  }
}

}  // namespace

void RunInterruptibly(const std::function<void()>& action) {
  constexpr std::chrono::milliseconds kBetweenLooks{50};
  Running running = Start(action);
  const auto ends = [&] {
    const py::gil_scoped_release unlocked;
    return EndsWithin(kBetweenLooks, running);
  };
  while (!ends()) {
    if (PyErr_CheckSignals() == 0) continue;
    LeaveAlone(std::move(running));
    throw py::error_already_set();
  }
  running.get();
}

void BindInterruptible() {
  py::module_::import("atexit").attr("register")(py::cpp_function([] {
    const auto last = std::exchange(LeftAlone(), {});
    const py::gil_scoped_release unlocked;
    for (const Running& running : last) running.wait();
  }));
}

}  // namespace kestrin::python
