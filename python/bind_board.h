#pragma once

/// @file
/// The classes of boards and of what was found in their files.

#include <pybind11/pybind11.h>

namespace kestrin::python {

void BindBoard(pybind11::module_& module);

}  // namespace kestrin::python
