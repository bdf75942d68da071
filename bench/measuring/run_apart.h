#pragma once

/// @file
/// Running a function in a process of its own.

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <type_traits>

namespace kestrin::bench {

/// Runs a function in a copy of this process and returns what it returns. So every work has a fresh heap:
/// none profits or suffers from the memory that another one left, and its peak of memory is its own.
template <class Function>
[[nodiscard]] std::invoke_result_t<Function> RunApart(Function function) {
  using Result = std::invoke_result_t<Function>;
  static_assert(std::is_trivially_copyable_v<Result>);
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("no pipe");
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("no process");
  if (child == 0) {
    try {
      const Result result = function();
      const bool written = write(ends[1], &result, sizeof(result)) == sizeof(result);
      _exit(written ? 0 : 1);
    } catch (...) {
      _exit(1);
    }
  }
  close(ends[1]);
  Result result{};
  const bool isRead = read(ends[0], &result, sizeof(result)) == sizeof(result);
  close(ends[0]);
  waitpid(child, nullptr, 0);
  if (!isRead) throw std::runtime_error("a work failed");
  return result;
}

}  // namespace kestrin::bench
