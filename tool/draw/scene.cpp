#include "tool/draw/scene.h"

#include <algorithm>

namespace kestrin::tool::draw {

void Box::Add(Point point) {
  x0 = std::min(x0, point.x);
  y0 = std::min(y0, point.y);
  x1 = std::max(x1, point.x);
  y1 = std::max(y1, point.y);
}

void Box::Grow(double length) {
  x0 -= length;
  y0 -= length;
  x1 += length;
  y1 += length;
}

Box BoxAround(std::span<const Point> points) {
  Box box;
  for (const Point point : points) box.Add(point);
  return box;
}

}  // namespace kestrin::tool::draw
