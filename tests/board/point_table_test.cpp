#include "kestrin/board/point_table.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace kestrin {
namespace {

std::vector<std::uint32_t> TakenNear(PointTable& table, Point position) {
  std::vector<std::uint32_t> taken;
  table.TakeNear(position, [&](std::uint32_t index) { taken.push_back(index); });
  return taken;
}

using Indexes = std::vector<std::uint32_t>;

TEST(PointTable, TakesPointsNearAPosition) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  PointTable table;
  table.Assign({{1, 2}, {1.0005, 2}, {1.002, 2}, {-3, 0.0001}, {kInfinity, 1}, {1e300, 1}});
  EXPECT_EQ(TakenNear(table, {1, 2}), (Indexes{0, 1}));
  EXPECT_EQ(TakenNear(table, {1, 2}), Indexes{});
  EXPECT_EQ(TakenNear(table, {1.0015, 2}), Indexes{2});
  EXPECT_EQ(TakenNear(table, {-3, -0.0001}), Indexes{3});
  EXPECT_EQ(TakenNear(table, {kInfinity, 1}), Indexes{});
  EXPECT_EQ(TakenNear(table, {1e300, 1}), Indexes{});
}

TEST(PointTable, FindsPointsInCellsBesideThePosition) {
  for (const double x : {-1.0, 0.0, 0.015625, 5.0}) {  // where cells meet
    for (const double y : {-0.015625, 0.0, 1.0}) {
      PointTable table;
      table.Assign({{x + 0.0003, y - 0.0003}});
      EXPECT_EQ(TakenNear(table, {x - 0.0003, y + 0.0003}), Indexes{0}) << x << ' ' << y;
    }
  }
}

TEST(PointTable, StaysFastForEqualPoints) {
  constexpr std::size_t kMany = 1'000'000;
  PointTable table;
  table.Assign(std::vector<Point>(kMany, {1, 1}));
  EXPECT_FALSE(TakenNear(table, {1, 1}).empty());
}

}  // namespace
}  // namespace kestrin
