#include "tool/draw/clip.h"

#include <algorithm>
#include <array>

namespace kestrin::tool::draw {
namespace {

/// The half of the plane on the inner side of a side of a box: x * point.x + y * point.y <= most.
struct Half {
  double x;
  double y;
  double most;

  /// How far inside a point is; negative outside.
  [[nodiscard]] double Inside(Point point) const { return most - x * point.x - y * point.y; }
};

std::array<Half, 4> HalvesOf(const Box& box) {
  return {{{-1.0, 0.0, -box.x0}, {1.0, 0.0, box.x1}, {0.0, -1.0, -box.y0}, {0.0, 1.0, box.y1}}};
}

/// Where a leg crosses the border of a half, if its ends are at these distances from it.
Point Crossing(Point from, Point to, double fromInside, double toInside) {
  const double part = fromInside / (fromInside - toInside);
  return {from.x + part * (to.x - from.x), from.y + part * (to.y - from.y)};
}

/// Shortens a leg to what is in a half. Returns whether anything is.
bool Shorten(Point& from, Point& to, const Half& half) {
  const double fromInside = half.Inside(from);
  const double toInside = half.Inside(to);
  if (fromInside < 0.0 && toInside < 0.0) return false;
  if (fromInside < 0.0) from = Crossing(from, to, fromInside, toInside);
  if (toInside < 0.0) to = Crossing(from, to, half.Inside(from), toInside);
  return true;
}

std::vector<Point> ClippedPolygon(const std::vector<Point>& points, const Half& half) {
  std::vector<Point> kept;
  for (std::size_t i = 0; i < points.size(); ++i) {
    const Point from = points[i];
    const Point to = points[(i + 1) % points.size()];
    const double fromInside = half.Inside(from);
    const double toInside = half.Inside(to);
    if (fromInside >= 0.0) kept.push_back(from);
    if ((fromInside < 0.0) != (toInside < 0.0)) kept.push_back(Crossing(from, to, fromInside, toInside));
  }
  return kept;
}

}  // namespace

std::vector<std::vector<Point>> ClippedLine(std::span<const Point> points, const Box& box) {
  const std::array<Half, 4> halves = HalvesOf(box);
  std::vector<std::vector<Point>> pieces;
  bool continues = false;  // the last leg ended in the box
  for (std::size_t i = 0; i + 1 < points.size() || (i == 0 && points.size() == 1); ++i) {
    Point from = points[i];
    Point to = points[std::min(i + 1, points.size() - 1)];
    const Point end = to;
    bool isSeen = true;
    for (const Half& half : halves) isSeen = isSeen && Shorten(from, to, half);
    if (!isSeen) {
      continues = false;
      continue;
    }
    if (!continues) pieces.push_back({from});
    pieces.back().push_back(to);
    continues = to == end;
  }
  return pieces;
}

std::vector<Point> ClippedPolygon(std::span<const Point> points, const Box& box) {
  std::vector<Point> kept(points.begin(), points.end());
  for (const Half& half : HalvesOf(box)) kept = ClippedPolygon(kept, half);
  return kept;
}

}  // namespace kestrin::tool::draw
