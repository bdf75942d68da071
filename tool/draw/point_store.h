#pragma once

/// @file
/// Room for the points of shapes.

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

#include "kestrin/board/board.h"

namespace kestrin::tool::draw {

/// Many short lists of points that never move. They are side by side in large blocks, since allocating each
/// of them would take longer than drawing it.
class PointStore {
 public:
  /// A new list, valid as long as the store.
  [[nodiscard]] std::span<Point> Make(std::size_t count) {
    constexpr std::size_t kBlock = 16384;
    if (blocks_.empty() || blocks_.back().capacity() - blocks_.back().size() < count) {
      blocks_.emplace_back().reserve(std::max(count, kBlock));
    }
    std::vector<Point>& block = blocks_.back();
    block.resize(block.size() + count);
    return std::span(block).last(count);
  }

 private:
  std::vector<std::vector<Point>> blocks_;
};

}  // namespace kestrin::tool::draw
