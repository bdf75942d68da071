#pragma once

/// @file
/// Finding the points near a leg or inside a polygon.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

#include "kestrin/board/board.h"

namespace kestrin {

/// A budget for a search: the number of points that it may still look at. It keeps the time in proportion to
/// the data, even if legs and points overlap so much that no index helps.
class Effort {
 public:
  /// The budget for a number of points, legs and vertices. A real board needs at most a tenth of it.
  explicit Effort(std::size_t size) : left_(1'000'000 + 100 * size) {}

  /// Takes points off the budget. Returns whether any is left.
  bool Spend(std::size_t points) {
    if (points > left_) left_ = 0;
    left_ -= std::min(points, left_);
    return left_ != 0;
  }
  [[nodiscard]] bool IsSpent() const { return left_ == 0; }

 private:
  std::size_t left_;
};

/// Points sorted into vertical strips with an equal number of points, and by y within each strip. A strip has
/// few points wherever they are; the cells of a grid could have many.
///
/// Most legs are near no point. A table leads to the first strip of a leg, and a bit for each row tells
/// whether a strip has points there, so such a leg takes few instructions.
class PointStrips {
 public:
  /// Replaces the points. Infinite points are ignored.
  void Assign(const std::vector<Point>& points);

  /// Calls an action with the index of every point within a distance of the segment between two points. Takes
  /// these points out: no later search finds them.
  template <class Action>
  void TakeNearLeg(Point from, Point to, double distance, Effort& effort, Action action);

  /// The indexes of all points inside a polygon, by the even-odd rule. Valid until the next call.
  [[nodiscard]] const std::vector<std::uint32_t>& Inside(const Polygon& polygon, Effort& effort);

 private:
  static constexpr std::size_t kRows = 64;
  static constexpr std::size_t kColumns = 64;
  static constexpr std::uint32_t kTaken = static_cast<std::uint32_t>(-1);

  /// One of many equal parts of a range of coordinates.
  struct Scale {
    double low = 0.0;
    double partsPerUnit = 0.0;

    Scale() = default;
    Scale(double lowest, double highest, std::size_t parts);
    /// The number of the part of a coordinate. Coordinates outside the range belong to the parts at its ends.
    [[nodiscard]] std::size_t PartOf(double coordinate) const {
      static_assert(kRows == kColumns);
      const double part = (coordinate - low) * partsPerUnit;
      if (!(part > 0.0)) return 0;  // also if it is not a number
      return static_cast<std::size_t>(std::min(part, static_cast<double>(kRows - 1)));
    }
  };
  struct Entry {
    Point at;
    std::uint32_t index;  // kTaken for a point that was taken out
  };
  struct Strip {
    double left;
    double right;
    std::size_t begin;
    std::size_t end;
    std::uint64_t rows;  // a bit for each row with points
  };
  struct Candidate {
    Entry entry;
    bool isInside = false;
  };

  template <class Action>
  void InStrip(const Strip& strip, double bottom, double top, Effort& effort, Action action);
  [[nodiscard]] std::size_t PointsInStrip() const;
  void AddStrip(std::size_t begin, std::size_t end);
  void FillFirstStrips();
  /// The first strip that is not left of an x coordinate.
  [[nodiscard]] std::size_t FirstStrip(double left) const { return firstStrips_[columns_.PartOf(left)]; }
  [[nodiscard]] std::uint64_t RowsBetween(double bottom, double top) const {
    constexpr std::uint64_t kAll = ~std::uint64_t{0};
    return (kAll << rows_.PartOf(bottom)) & (kAll >> (kRows - 1 - rows_.PartOf(top)));
  }
  void GatherCandidates(const Polygon& polygon, Effort& effort);

  std::vector<Entry> entries_;
  std::vector<Strip> strips_;
  Scale rows_;
  Scale columns_;
  std::array<std::size_t, kColumns> firstStrips_{};
  std::vector<Candidate> candidates_;  // of the current search
  std::vector<std::uint32_t> inside_;  // the result of the last search
};

/// Whether a point is within a distance of the segment between two points.
[[nodiscard]] inline bool IsNear(Point point, Point from, Point to, double distance) {
  const double x = to.x - from.x;
  const double y = to.y - from.y;
  const double square = x * x + y * y;
  const double along = (point.x - from.x) * x + (point.y - from.y) * y;
  const double part = square > 0.0 ? std::clamp(along / square, 0.0, 1.0) : 0.0;
  const double dx = point.x - (from.x + part * x);
  const double dy = point.y - (from.y + part * y);
  return dx * dx + dy * dy <= distance * distance;
}

template <class Action>
void PointStrips::InStrip(const Strip& strip, double bottom, double top, Effort& effort, Action action) {
  constexpr std::size_t kFew = 16;
  Entry* entry = entries_.data() + strip.begin;
  Entry* const end = entries_.data() + strip.end;
  const auto isBelow = [](const Entry& a, double y) { return a.at.y < y; };
  if (strip.end - strip.begin > kFew) entry = std::lower_bound(entry, end, bottom, isBelow);
  while (entry != end && isBelow(*entry, bottom)) ++entry;
  if (!effort.Spend(1)) return;
  for (; entry != end && entry->at.y <= top; ++entry) {
    if (!effort.Spend(1)) return;
    if (entry->index != kTaken) action(*entry);
  }
}

template <class Action>
void PointStrips::TakeNearLeg(Point from, Point to, double distance, Effort& effort, Action action) {
  if (from.x > to.x) std::swap(from, to);
  const double reach = 1.01 * distance;  // the surplus is greater than any rounding error
  const auto [bottom, top] = std::minmax(from.y, to.y);
  const std::uint64_t rows = RowsBetween(bottom - reach, top + reach);
  for (std::size_t i = FirstStrip(from.x - reach); i < strips_.size(); ++i) {
    const Strip& strip = strips_[i];
    if (!(strip.left <= to.x + reach)) return;
    if ((strip.rows & rows) == 0 && effort.Spend(1)) continue;
    if (effort.IsSpent()) return;
    // The part of the leg in the strip.
    const bool isUpright = !(from.x + reach < to.x);
    const double slope = isUpright ? 0.0 : (to.y - from.y) / (to.x - from.x);
    const auto yAt = [&](double x) { return from.y + slope * (std::clamp(x, from.x, to.x) - from.x); };
    double low = isUpright ? from.y : yAt(strip.left - reach);
    double high = isUpright ? to.y : yAt(strip.right + reach);
    if (low > high) std::swap(low, high);
    InStrip(strip, low - reach, high + reach, effort, [&](Entry& entry) {
      if (IsNear(entry.at, from, to, distance)) action(std::exchange(entry.index, kTaken));
    });
  }
}

}  // namespace kestrin
