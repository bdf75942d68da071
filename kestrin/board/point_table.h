#pragma once

/// @file
/// Finding points by their position.

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "kestrin/board/board.h"

namespace kestrin {

/// A hash table of points, which finds a point near a position at once. It looks at a few slots only, so many
/// points at the same place cannot make it slow, but it may miss some. PointStrips finds these.
class PointTable {
 public:
  /// Replaces the points. Ignores points that are infinite or extremely far away.
  void Assign(const std::vector<Point>& points);

  /// Calls an action with the index of every point that it finds within kNear of a position. Takes these
  /// points out: no later search finds them.
  template <class Action>
  void TakeNear(Point position, Action action);

  static constexpr double kNear = 0.0009;

 private:
  static constexpr std::uint32_t kFree = static_cast<std::uint32_t>(-1);
  static constexpr std::uint32_t kTaken = kFree - 1;
  static constexpr std::size_t kProbes = 8;

  /// A square of the plane. Its sides are much longer than kNear, so that mostly one cell is looked at.
  struct Cell {
    std::int64_t column;
    std::int64_t row;

    [[nodiscard]] std::size_t Hash() const noexcept;
  };
  struct Entry {
    Point at;
    std::uint32_t index = kFree;
  };

  [[nodiscard]] static bool HasCell(Point point) noexcept {
    constexpr double kFarthest = 1e12;
    return -kFarthest < point.x && point.x < kFarthest && -kFarthest < point.y && point.y < kFarthest;
  }
  [[nodiscard]] static Cell CellOf(Point point) noexcept {
    constexpr double kCellsPerMillimetre = 64.0;
    return {static_cast<std::int64_t>(point.x * kCellsPerMillimetre),
            static_cast<std::int64_t>(point.y * kCellsPerMillimetre)};
  }
  template <class Action>
  void TakeInCell(Cell cell, Point position, Action action);

  std::vector<Entry> entries_;  // their number is a power of two; at most half have a point
};

template <class Action>
void PointTable::TakeNear(Point position, Action action) {
  if (!HasCell(position)) return;
  const Cell low = CellOf({position.x - kNear, position.y - kNear});
  const Cell high = CellOf({position.x + kNear, position.y + kNear});
  for (std::int64_t column = low.column; column <= high.column; ++column) {
    for (std::int64_t row = low.row; row <= high.row; ++row) TakeInCell({column, row}, position, action);
  }
}

template <class Action>
void PointTable::TakeInCell(Cell cell, Point position, Action action) {
  const std::size_t first = cell.Hash();
  for (std::size_t probe = 0; probe < kProbes; ++probe) {
    Entry& entry = entries_[(first + probe) & (entries_.size() - 1)];
    if (entry.index == kFree) return;
    const double x = entry.at.x - position.x;
    const double y = entry.at.y - position.y;
    if (entry.index != kTaken && x * x + y * y <= kNear * kNear) action(std::exchange(entry.index, kTaken));
  }
}

}  // namespace kestrin
