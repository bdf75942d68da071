#pragma once

#include <algorithm>
#include <cstdint>
#include <vector>

#include "kestrin/geometry/number_list.h"

namespace kestrin {

/// Appends all numbers in one step, so that a list that is filled once has no spare memory.
inline void Append(NumberArray& list, const std::vector<double>& numbers) {
  const auto oldSize = list.GetSize();
  list.SetSize(oldSize + static_cast<std::int64_t>(numbers.size()));
  std::copy(numbers.begin(), numbers.end(), list.GetData() + oldSize);
}

}  // namespace kestrin
