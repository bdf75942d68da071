#pragma once

/// @file
/// Making indexes.

#include <cstddef>
#include <limits>
#include <new>

#include "kestrin/board/board.h"

namespace kestrin {

/// A place in a list as an index. Throws std::bad_alloc if it is too large for one.
[[nodiscard]] inline Index ToIndex(std::size_t place) {
  if (place >= std::numeric_limits<Index>::max()) throw std::bad_alloc();
  return static_cast<Index>(place);
}

}  // namespace kestrin
