#pragma once

/// @file
/// Drawing boards.

#include <pybind11/pybind11.h>

#include "python/handle.h"

namespace kestrin::python {

/// Adds the method `draw` to the class of boards.
void BindDraw(py::class_<Handle<Board>>& board);

}  // namespace kestrin::python
