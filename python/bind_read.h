#pragma once

/// @file
/// The module's functions that read sets.

#include <pybind11/pybind11.h>

namespace kestrin::python {

void BindRead(pybind11::module_& module);

}  // namespace kestrin::python
