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

Box BoxAround(const SceneText& text) {
  const double width = kLetterWidth * text.height * static_cast<double>(text.text.size());
  const double left = -width * text.column / 2.0;
  const double bottom = -text.height * (2 - text.row) / 2.0;
  Box box;
  for (const double along : {left, left + width}) {
    for (const double up : {bottom, bottom + text.height}) {
      box.Add({text.position.x + along * text.cosX + up * text.cosY,
               text.position.y + along * text.sinX + up * text.sinY});
    }
  }
  return box;
}

}  // namespace kestrin::tool::draw
