#pragma once

/// @file
/// Lists of numbers. Coordinates are kept flat, as x, y, x, y, … in the file's order and unit; nothing pairs
/// them up, so that an odd number of values stays odd.

#include <algorithm>
#include <vector>

#include "kestrin/framework/array.h"

namespace kestrin {

/// An array of numbers.
using NumberArray = CArray<double, double>;

/// Appends in one step, so that a list that is filled once takes no more memory than its numbers.
inline void Append(NumberArray& list, const std::vector<double>& numbers) {
  const auto oldSize = list.GetSize();
  list.SetSize(oldSize + static_cast<std::int64_t>(numbers.size()));
  std::copy(numbers.begin(), numbers.end(), list.GetData() + oldSize);
}

}  // namespace kestrin
