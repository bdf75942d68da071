#pragma once

/// @file
/// Lists of numbers. Coordinates are kept flat, as x, y, x, y, … in the file's order and unit; nothing pairs
/// them up, so that an odd number of values stays odd.

#include "kestrin/framework/array.h"

namespace kestrin {

/// An array of numbers.
using NumberArray = CArray<double, double>;

}  // namespace kestrin
