#pragma once

/// @file
/// Ctrl-C while the library computes something that it does not stop.

#include <pybind11/pybind11.h>

#include <functional>

namespace kestrin::python {

/// Runs an action without Python's lock. If a signal handler raises meanwhile, raises that within 50 ms; the
/// action then ends in its own time, so what it uses must be its own or shared. Call it with the lock.
void RunInterruptibly(const std::function<void()>& action);

/// Lets the end of Python wait for actions that nobody waits for any more.
void BindInterruptible();

}  // namespace kestrin::python
