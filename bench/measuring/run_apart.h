#pragma once

/// @file
/// Running a function in its own process.

#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <stdexcept>
#include <type_traits>

namespace kestrin::bench {

/// Runs a function in a forked process and returns its result. So each run starts with the same heap and has
/// its own memory peak. Raises std::runtime_error if the function raises an exception.
template <class Function>
[[nodiscard]] std::invoke_result_t<Function> RunApart(Function function) {
  using Result = std::invoke_result_t<Function>;
  static_assert(std::is_trivially_copyable_v<Result>);
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) throw std::runtime_error("cannot create a pipe");
  const pid_t child = fork();
  if (child < 0) throw std::runtime_error("cannot fork a process");
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
  if (!isRead) throw std::runtime_error("the forked process failed");
  return result;
}

}  // namespace kestrin::bench
