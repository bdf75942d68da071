#pragma once

/// @file
/// Arcs as polylines. The formats say what three pairs of coordinates an arc has, but not how they make it;
/// docs/draw.md says what this convention is.

#include <vector>

#include "kestrin/board/board.h"
#include "kestrin/geometry/draw_objects.h"

namespace kestrin::tool::draw {

/// Points along an arc, from its first to its last point, in the unit of the geometry. A straight line if the
/// three pairs do not make an arc.
[[nodiscard]] std::vector<Point> PointsOfArc(const CMGeomArc& arc);

/// Points around a circle; the first is not repeated.
[[nodiscard]] std::vector<Point> PointsOfCircle(Point centre, double radius);

}  // namespace kestrin::tool::draw
