#pragma once

/// @file
/// Lists of numbers. Coordinates are stored as x, y, x, y, ... in the order and unit of the file. They are
/// not grouped into pairs, so a list may have an odd number of values.

#include "kestrin/framework/array.h"

namespace kestrin {

/// An array of numbers.
using NumberArray = CArray<double, double>;

}  // namespace kestrin
