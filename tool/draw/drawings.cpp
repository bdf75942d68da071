#include "tool/draw/drawings.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "kestrin/board/for_each_record.h"
#include "tool/draw/curves.h"

namespace kestrin::tool::draw {
namespace {

/// The kinds of drawing objects. An object says by m_sType what it is.
template <class Action>
auto Visit(const CMGeomDrawObj& object, Action action) -> decltype(action(CMGeomPath())) {
  if (const auto* path = dynamic_cast<const CMGeomPath*>(&object)) return action(*path);
  if (const auto* polygon = dynamic_cast<const CMGeomPolygon*>(&object)) return action(*polygon);
  if (const auto* arc = dynamic_cast<const CMGeomArc*>(&object)) return action(*arc);
  if (const auto* circle = dynamic_cast<const CMGeomCircle*>(&object)) return action(*circle);
  return decltype(action(CMGeomPath()))();
}

Drawn DrawnFrom(const CMGeomPath& path, Part /*part*/) {
  return {PointsIn(*path.m_pCoords), Form::kLine, path.m_dWidth};
}
Drawn DrawnFrom(const CMGeomPolygon& polygon, Part /*part*/) {
  return {PointsIn(*polygon.m_pCoords), Form::kFill, 0.0};
}
Drawn DrawnFrom(const CMGeomArc& arc, Part /*part*/) { return {PointsOfArc(arc), Form::kLine, arc.m_dWidth}; }
/// Convention: the size of a circle is its diameter.
Drawn DrawnFrom(const CMGeomCircle& circle, Part part) {
  const Point centre{circle.m_dX, circle.m_dY};
  if (part == Part::kPad || !(circle.m_dWidth > 0.0)) return {{centre}, Form::kDot, circle.m_dSize};
  return {PointsOfCircle(centre, circle.m_dSize / 2.0), Form::kContour, circle.m_dWidth};
}

/// The direction on the board of a direction in a geometry.
Point Turned(const Transform& transform, double x, double y) {
  if (transform.isMirrored) x = -x;
  return {transform.cosine * x - transform.sine * y, transform.sine * x + transform.cosine * y};
}

}  // namespace

std::vector<Point> PointsIn(const NumberArray& numbers) {
  std::vector<Point> points;
  for (std::int64_t i = 0; i + 1 < numbers.GetSize(); i += 2) points.push_back({numbers[i], numbers[i + 1]});
  return points;
}

std::string_view LayerOf(const CMGeomDrawObj& object) {
  return Visit(object, [](const auto& drawn) { return drawn.m_sLayer.View(); });
}

std::vector<Drawings::Prepared>& Drawings::Prepare(const CMGeomDrawObjArray& objects, Part part) {
  constexpr std::size_t kMostCompared = 100;  // nobody has more; comparing takes quadratic time
  const auto [place, isNew] = prepared_.try_emplace(&objects);
  std::vector<Prepared>& prepared = place->second;
  if (!isNew) return prepared;
  ForEachRecord(&objects, [&](const CMGeomDrawObj& object, Index) {
    Prepared made;
    made.drawn = Visit(object, [part](const auto& kind) { return DrawnFrom(kind, part); });
    made.layer = LayerOf(object);
    const auto compared = std::min(prepared.size(), kMostCompared);
    made.isRepeated = std::any_of(prepared.begin(), prepared.begin() + static_cast<std::ptrdiff_t>(compared),
                                  [&](const Prepared& other) { return other.drawn == made.drawn; });
    prepared.push_back(std::move(made));
  });
  return prepared;
}

void Drawings::Draw(const CMGeomDrawObjArray& objects, const Placement& placement, const Owner& owner,
                    Part part) {
  for (Prepared& object : Prepare(objects, part)) {
    SceneLayer*& layer = object.layers[static_cast<std::size_t>(placement.side)];
    if (layer == nullptr) layer = &layers_.OfName(board_.LayerOn(placement.side, object.layer));
    DrawPoints(object.drawn.points, placement, owner, *layer,
               {false, part, object.drawn.form, object.drawn.width});
  }
}

void Drawings::DrawOnce(const CMGeomDrawObjArray& objects, const Placement& placement, const Owner& owner,
                        SceneLayer& layer) {
  for (const Prepared& object : Prepare(objects, Part::kPad)) {
    if (object.isRepeated) continue;
    DrawPoints(object.drawn.points, placement, owner, layer,
               {false, Part::kPad, object.drawn.form, object.drawn.width});
  }
}

void Drawings::DrawPoints(std::span<const Point> points, const Placement& placement, const Owner& owner,
                          SceneLayer& layer, Brush brush) {
  if (points.size() > pointsLeft_) {
    pointsLeft_ = 0;
    return;
  }
  pointsLeft_ -= points.size();
  const std::span<Point> placed = points_.Make(points.size());
  for (std::size_t i = 0; i < points.size(); ++i) placed[i] = placement.transform.Apply(points[i]);
  brush.width *= placement.transform.unit;
  layers_.Add(layer, brush, owner, placed);
}

void Drawings::Draw(const NumberArray& outline, const Placement& placement, const Owner& owner,
                    SceneLayer& layer, Brush brush) {
  DrawPoints(PointsIn(outline), placement, owner, layer, brush);
}

void Drawings::DrawDot(Point position, double diameter, const Owner& owner, SceneLayer& layer, Part part) {
  if (pointsLeft_ == 0) return;
  --pointsLeft_;
  const std::span<Point> placed = points_.Make(1);
  placed[0] = position;
  layers_.Add(layer, {false, part, Form::kDot, diameter}, owner, placed);
}

void Drawings::Draw(const CMGeomText& text, const Placement& placement, const Owner& owner) {
  int mirror = 0;
  int anchor = 0;
  double angle = 0.0;
  text.Get_OrvaneTextStyleValue(mirror, angle, anchor);
  const double radians = angle * std::numbers::pi / 180.0;
  const double sign = mirror != 0 ? -1.0 : 1.0;
  const Point right = Turned(placement.transform, sign * std::cos(radians), sign * std::sin(radians));
  const Point up = Turned(placement.transform, -std::sin(radians), std::cos(radians));
  SceneText made;
  made.text = text.m_sText.View();
  made.position = placement.transform.Apply({text.m_dX, text.m_dY});
  made.height = text.m_dSize * placement.transform.unit;
  made.cosX = right.x;
  made.sinX = right.y;
  made.cosY = up.x;
  made.sinY = up.y;
  made.column = (anchor - 1) % 3;
  made.row = (anchor - 1) / 3;
  layers_.Add(layers_.OfName(board_.LayerOn(placement.side, text.m_sLayer.View())), std::move(made), owner);
}

}  // namespace kestrin::tool::draw
