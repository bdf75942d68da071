#pragma once

/// @file
/// Exceptions of a host's handlers, which must not cross the code of the system that calls the handlers.

#include <exception>
#include <type_traits>

namespace kestrin {

/// While one exists, the first exception of this thread's handlers is kept.
class ExceptionKeeper {
 public:
  ExceptionKeeper();
  ExceptionKeeper(const ExceptionKeeper&) = delete;
  ExceptionKeeper& operator=(const ExceptionKeeper&) = delete;
  ~ExceptionKeeper();

  /// Keeps the exception that is being handled. Ends the program if there is no keeper on this thread that
  /// could raise it again.
  static void KeepCurrent() noexcept;

  /// Raises the exception that was kept, if any.
  void Raise();

 private:
  ExceptionKeeper* outer_;
  std::exception_ptr kept_;
};

/// Makes a call of the system, and raises what a handler threw meanwhile.
template <class Call>
auto CallSystem(Call call) {
  ExceptionKeeper keeper;
  const auto result = call();
  keeper.Raise();
  return result;
}

}  // namespace kestrin
