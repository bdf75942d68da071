#pragma once

/// @file
/// Comparing boards.

#include <pybind11/pybind11.h>

namespace kestrin::python {

/// Adds the function `compare` and the classes of what it finds.
void BindCompare(pybind11::module_& module);

}  // namespace kestrin::python
