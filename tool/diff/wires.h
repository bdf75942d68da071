#pragma once

/// @file
/// The wires of two boards: polylines of their nets.

#include <cstring>
#include <string_view>
#include <vector>

#include "kestrin/board/vertices.h"
#include "tool/diff/matching.h"
#include "tool/diff/sides.h"

namespace kestrin::tool {

/// The layer and width of a leg, without padding, so that equal ones have equal bytes.
struct Copper {
  double layer = 0.0;
  double width = kUnknownWidth;
};

/// A polyline, in the direction in which its points compare lower. Its key is net, kind and points, then the
/// legs, then the names of vias at its points.
struct Wire : Matchable {
  std::size_t pathSize = 0;  ///< of net, kind and points
  std::size_t legs = 0;      ///< the number of legs

  [[nodiscard]] std::string_view Path() const { return std::string_view(key).substr(0, pathSize); }
  [[nodiscard]] Copper CopperAt(std::size_t leg) const {
    Copper copper;
    std::memcpy(&copper, key.data() + pathSize + leg * sizeof copper, sizeof copper);
    return copper;
  }
  /// The points, in millimetres.
  [[nodiscard]] std::vector<Point> Points() const {
    std::vector<Point> points(legs + 1);
    const std::size_t size = points.size() * sizeof(Point);
    std::memcpy(points.data(), key.data() + pathSize - size, size);
    return points;
  }
  /// The names of vias, a line for each point.
  [[nodiscard]] std::string_view Vias() const {
    return std::string_view(key).substr(pathSize + legs * sizeof(Copper));
  }
};

/// The wires of two boards. Those with a match have the same path; isExact says whether they have the same
/// copper, too.
struct MatchedWires {
  std::vector<Wire> before;
  std::vector<Wire> after;
  std::vector<bool> isExact;  ///< for each wire before
};

[[nodiscard]] MatchedWires MatchWires(const Sides& sides);

}  // namespace kestrin::tool
