#include "kestrin/board/point_strips.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <set>
#include <string>

namespace kestrin {
namespace {

using Indexes = std::set<std::uint32_t>;

/// Points in distributions that are hard for a grid, such as many at the same place or far apart.
std::vector<Point> PointsLike(const std::string& kind, std::size_t count, std::mt19937& random) {
  std::uniform_real_distribution<double> anywhere(-50, 50);
  std::uniform_int_distribution<int> whole(-5, 5);
  std::vector<Point> points;
  for (std::size_t i = 0; i < count; ++i) {
    Point point{anywhere(random), anywhere(random)};
    if (kind == "lattice") point = {static_cast<double>(whole(random)), static_cast<double>(whole(random))};
    if (kind == "upright") point.x = 3.0;
    if (kind == "level") point.y = 3.0;
    if (kind == "far" && i % 10 == 0) point = {point.x * 1e9, point.y * 1e9};
    points.push_back(point);
  }
  return points;
}

bool IsInsideSimply(Point at, const Polygon& polygon) {
  bool isInside = false;
  for (std::size_t i = 0, j = polygon.size() - 1; i < polygon.size(); j = i++) {
    const Point a = polygon[i];
    const Point b = polygon[j];
    if ((a.y > at.y) != (b.y > at.y) && at.x < (b.x - a.x) * (at.y - a.y) / (b.y - a.y) + a.x)
      isInside = !isInside;
  }
  return isInside;
}

TEST(PointStrips, FindWhatAPlainSearchFinds) {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> anywhere(-60, 60);
  std::uniform_int_distribution<std::size_t> corners(3, 12);
  for (const char* kind : {"anywhere", "lattice", "upright", "level", "far"}) {
    for (const std::size_t count : {0U, 1U, 20U, 64U, 65U, 700U}) {
      const std::vector<Point> points = PointsLike(kind, count, random);
      PointStrips strips;
      for (int round = 0; round < 200; ++round) {
        strips.Assign(points);
        const Point from{anywhere(random), anywhere(random)};
        const Point to = round % 4 == 0   ? Point{from.x, anywhere(random)}
                         : round % 4 == 1 ? Point{anywhere(random), 3.0}
                         : round % 4 == 2 ? from
                                          : Point{anywhere(random), anywhere(random)};
        const double distance = round % 2 == 0 ? 0.001 : 1.5;
        Indexes expected;
        for (std::uint32_t i = 0; i < count; ++i) {
          if (IsNear(points[i], from, to, distance)) expected.insert(i);
        }
        Effort effort(count);
        Indexes found;
        strips.TakeNearLeg(from, to, distance, effort, [&](std::uint32_t i) { found.insert(i); });
        EXPECT_EQ(found, expected) << kind << ' ' << count << ' ' << round;
        strips.TakeNearLeg(from, to, distance, effort,
                           [&](std::uint32_t i) { ADD_FAILURE() << "twice: " << i; });

        Polygon polygon;
        for (std::size_t i = corners(random); i > 0; --i)
          polygon.push_back({anywhere(random), anywhere(random)});
        expected.clear();
        for (std::uint32_t i = 0; i < count; ++i) {
          if (IsInsideSimply(points[i], polygon) && found.count(i) == 0) expected.insert(i);
        }
        const auto& inside = strips.Inside(polygon, effort);
        EXPECT_EQ(Indexes(inside.begin(), inside.end()), expected) << kind << ' ' << count << ' ' << round;
      }
    }
  }
}

TEST(PointStrips, MeasureTheDistanceToTheNearestPointOfALeg) {
  struct Case {
    Point point;
    bool isNear;
  };
  const Case cases[] = {
      {{5, 0.125}, true},   {{5, 0.126}, false},  {{5, -0.125}, true},   {{-0.125, 0}, true},
      {{-0.126, 0}, false}, {{10.1, 0.1}, false}, {{10.08, 0.08}, true}, {{1e308, 1e308}, false},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(IsNear(c.point, {0, 0}, {10, 0}, 0.125), c.isNear) << c.point.x << ' ' << c.point.y;
    EXPECT_EQ(IsNear({c.point.y, c.point.x}, {0, 10}, {0, 0}, 0.125), c.isNear)
        << c.point.x << ' ' << c.point.y;
  }
}

TEST(PointStrips, AllowInfinities) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  std::vector<Point> points{{0, 0}, {kInfinity, 0}, {0, -kInfinity}, {1e308, -1e308}};
  for (int i = 0; i < 100; ++i) points.push_back({1, static_cast<double>(i)});
  PointStrips strips;
  strips.Assign(points);
  Effort effort(points.size());
  Indexes found;
  strips.TakeNearLeg({-1e308, 0}, {1e308, 0}, 0.001, effort, [&](std::uint32_t i) { found.insert(i); });
  EXPECT_EQ(found.count(1) + found.count(2), 0U);
  const Polygon polygon{{-1, -1}, {kInfinity, -1}, {0.5, 0.5}, {-1, 0.5}};
  static_cast<void>(strips.Inside(polygon, effort));
}

}  // namespace
}  // namespace kestrin
