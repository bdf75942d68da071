#include "tool/draw/curves.h"

#include <algorithm>
#include <cmath>
#include <numbers>
#include <optional>

namespace kestrin::tool::draw {
namespace {

constexpr double kTurn = 2.0 * std::numbers::pi;
/// A full circle has this many legs, so that it is off by a thousandth of its radius at most.
constexpr double kLegsPerTurn = 72.0;

struct Arc {
  Point centre;
  double radius = 0.0;
  double from = 0.0;   // the angle of the first point
  double sweep = 0.0;  // counter-clockwise if positive
};

double AngleOf(Point centre, Point point) { return std::atan2(point.y - centre.y, point.x - centre.x); }

/// The angle from one direction to another, counter-clockwise: above 0, up to a turn.
double TurnBetween(double from, double to) {
  const double turn = std::fmod(to - from, kTurn);
  return turn <= 0.0 ? turn + kTurn : turn;
}

Arc CounterClockwise(Point centre, Point from, Point to) {
  const double start = AngleOf(centre, from);
  return {centre, std::hypot(from.x - centre.x, from.y - centre.y), start,
          TurnBetween(start, AngleOf(centre, to))};
}

/// The shorter arc of a radius, counter-clockwise from one point to another.
Arc WithRadius(Point from, Point to, double radius) {
  const Point middle{(from.x + to.x) / 2.0, (from.y + to.y) / 2.0};
  const double x = to.x - from.x;
  const double y = to.y - from.y;
  const double chord = std::hypot(x, y);
  const double height = std::sqrt(std::max(0.0, radius * radius - chord * chord / 4.0));
  return CounterClockwise({middle.x - height * y / chord, middle.y + height * x / chord}, from, to);
}

/// The arc through three points.
std::optional<Arc> Through(Point a, Point b, Point c) {
  const double d = 2.0 * (a.x * (b.y - c.y) + b.x * (c.y - a.y) + c.x * (a.y - b.y));
  if (d == 0.0) return std::nullopt;
  const double aa = a.x * a.x + a.y * a.y;
  const double bb = b.x * b.x + b.y * b.y;
  const double cc = c.x * c.x + c.y * c.y;
  const Point centre{(aa * (b.y - c.y) + bb * (c.y - a.y) + cc * (a.y - b.y)) / d,
                     (aa * (c.x - b.x) + bb * (a.x - c.x) + cc * (b.x - a.x)) / d};
  Arc arc = CounterClockwise(centre, a, c);
  const bool meetsSecond = TurnBetween(arc.from, AngleOf(centre, b)) <= arc.sweep;
  if (!meetsSecond) arc.sweep -= kTurn;
  return arc;
}

std::optional<Arc> ArcOf(const CMGeomArc& arc, Point first, Point second, Point third) {
  constexpr int kRadius = 1;
  constexpr int kCentre = 2;
  if (arc.m_nArcMode == kCentre) return CounterClockwise(third, first, second);
  if (arc.m_nArcMode != kRadius) return Through(first, second, third);
  if (first == second) return std::nullopt;
  return WithRadius(first, second, third.x);
}

std::vector<Point> PointsAlong(const Arc& arc) {
  const int legs = std::max(2, static_cast<int>(std::ceil(std::abs(arc.sweep) / kTurn * kLegsPerTurn)));
  std::vector<Point> points;
  for (int i = 0; i <= legs; ++i) {
    const double angle = arc.from + arc.sweep * i / legs;
    points.push_back(
        {arc.centre.x + arc.radius * std::cos(angle), arc.centre.y + arc.radius * std::sin(angle)});
  }
  return points;
}

}  // namespace

std::vector<Point> PointsOfArc(const CMGeomArc& arc) {
  const Point first{arc.m_dX1, arc.m_dY1};
  const Point second{arc.m_dX2, arc.m_dY2};
  const Point third{arc.m_dX3, arc.m_dY3};
  const std::optional<Arc> found = ArcOf(arc, first, second, third);
  if (found && std::isfinite(found->radius) && std::isfinite(found->sweep)) return PointsAlong(*found);
  return arc.m_nArcMode == 0 ? std::vector{first, second, third} : std::vector{first, second};
}

std::vector<Point> PointsOfCircle(Point centre, double radius) {
  std::vector<Point> points = PointsAlong({centre, radius, 0.0, kTurn});
  points.pop_back();
  return points;
}

}  // namespace kestrin::tool::draw
