#pragma once

/// @file
/// The records of a board as columns of tables.

#include <pybind11/pybind11.h>

#include "python/handle.h"

namespace kestrin::python {

/// The tables of a board, by name: "components", "pins", "nets", "tracks", "vias", "areas" and "findings".
/// Each is a dictionary of columns, which are arrays of numbers or lists of texts, all of the same length.
[[nodiscard]] py::dict TablesOf(const Handle<Board>& board);

}  // namespace kestrin::python
