#pragma once

/// @file
/// Finding the pins that touch the copper of their net.

#include <cstddef>
#include <cstdint>
#include <vector>

#include "kestrin/board/board.h"
#include "kestrin/board/point_strips.h"
#include "kestrin/board/point_table.h"

namespace kestrin {

/// Finds the points that touch the copper of a net. Its memory is reused from net to net.
class TouchSearch {
 public:
  explicit TouchSearch(const Board& board) : board_(board) {}

  /// Returns for each point whether it touches the copper. Valid until the next call.
  [[nodiscard]] const std::vector<bool>& Find(const std::vector<Point>& points, const Net& net);

 private:
  void FindAtEnds(const Net& net);
  void FindNear(Point from, Point to, double distance, Effort& effort);
  void FindInside(const Area& area, Effort& effort);
  [[nodiscard]] Effort EffortFor(const Net& net) const;

  const Board& board_;
  PointTable table_;
  PointStrips strips_;
  std::vector<bool> touches_;         // for each point
  std::size_t left_ = 0;              // points that are not found yet
  std::vector<Point> rest_;           // those that are not at the end of a track
  std::vector<std::size_t> indexes_;  // of the rest, in the given points
  std::vector<std::uint32_t> inArea_;
};

}  // namespace kestrin
