#pragma once

/// @file
/// Running two actions at the same time.

#include <future>

namespace kestrin {

/// Runs two actions that do not depend on each other. If they are worth a thread and there can be one, the
/// second action runs in it, else after the first. Raises what an action raises, after both have ended.
template <class First, class Second>
void RunSideBySide(bool isWorthThread, First first, Second second) {
  constexpr std::launch kEither = std::launch::async | std::launch::deferred;
  std::future<void> end = std::async(isWorthThread ? kEither : std::launch::deferred, second);
  first();
  end.get();
}

}  // namespace kestrin
