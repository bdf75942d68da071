#pragma once

/// @file
/// Cutting off what is far outside a picture, for libraries that compute with few digits.

#include <span>
#include <vector>

#include "tool/draw/scene.h"

namespace kestrin::tool::draw {

/// The pieces of a polyline that are in a box.
[[nodiscard]] std::vector<std::vector<Point>> ClippedLine(std::span<const Point> points, const Box& box);

/// The part of a polygon that is in a box; pieces are joined along its sides. Empty if nothing is.
[[nodiscard]] std::vector<Point> ClippedPolygon(std::span<const Point> points, const Box& box);

}  // namespace kestrin::tool::draw
