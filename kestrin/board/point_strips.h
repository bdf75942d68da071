#pragma once

/// @file
/// Finding the points near a leg or inside a polygon.

#include <algorithm>
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
class PointStrips {
 public:
  /// Replaces the points. Infinite points are ignored.
  void Assign(const std::vector<Point>& points);

  /// Calls an action with the index of every point within a distance of the segment between two points.
  template <class Action>
  void NearLeg(Point from, Point to, double distance, Effort& effort, Action action) const;

  /// The indexes of all points inside a polygon, by the even-odd rule. Valid until the next call.
  [[nodiscard]] const std::vector<std::uint32_t>& Inside(const Polygon& polygon, Effort& effort);

 private:
  struct Entry {
    Point at;
    std::uint32_t index;
  };
  struct Strip {
    double left;
    double right;
    std::size_t begin;
    std::size_t end;
  };
  struct Candidate {
    Entry entry;
    bool isInside = false;
  };

  template <class Action>
  void NearLegOfFew(Point from, Point to, double distance, Effort& effort, Action action) const;
  template <class Action>
  void InStrip(const Strip& strip, double bottom, double top, Effort& effort, Action action) const;
  [[nodiscard]] std::vector<Strip>::const_iterator FirstStrip(double left) const;
  void GatherCandidates(const Polygon& polygon, Effort& effort);

  static constexpr std::size_t kFew = 16;

  std::vector<Entry> entries_;
  std::vector<Strip> strips_;
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
void PointStrips::InStrip(const Strip& strip, double bottom, double top, Effort& effort,
                          Action action) const {
  const Entry* entry = entries_.data() + strip.begin;
  const Entry* const end = entries_.data() + strip.end;
  const auto isBelow = [](const Entry& a, double y) { return a.at.y < y; };
  if (strip.end - strip.begin > kFew) entry = std::lower_bound(entry, end, bottom, isBelow);
  while (entry != end && isBelow(*entry, bottom)) ++entry;
  if (!effort.Spend(1)) return;
  for (; entry != end && entry->at.y <= top; ++entry) {
    if (!effort.Spend(1)) return;
    action(*entry);
  }
}

/// Looks at every point. Faster than a search for the few points of most nets.
template <class Action>
void PointStrips::NearLegOfFew(Point from, Point to, double distance, Effort& effort, Action action) const {
  const auto [bottom, top] = std::minmax(from.y, to.y);
  for (const Entry& entry : entries_) {
    const Point at = entry.at;
    const double besides = std::max(from.x - at.x, at.x - to.x);
    const double above = std::max(bottom - at.y, at.y - top);
    if (std::max(besides, above) > distance) continue;
    if (IsNear(at, from, to, distance)) action(entry.index);
  }
  effort.Spend(entries_.size());
}

template <class Action>
void PointStrips::NearLeg(Point from, Point to, double distance, Effort& effort, Action action) const {
  if (from.x > to.x) std::swap(from, to);
  if (entries_.size() <= kFew) return NearLegOfFew(from, to, distance, effort, action);
  const double reach = 1.01 * distance;  // the surplus is greater than any rounding error
  const bool isUpright = !(from.x + reach < to.x);
  const double slope = isUpright ? 0.0 : (to.y - from.y) / (to.x - from.x);
  for (auto strip = FirstStrip(from.x - reach); strip != strips_.end() && strip->left <= to.x + reach;
       ++strip) {
    // The part of the leg in the strip.
    double low =
        isUpright ? from.y : from.y + slope * (std::clamp(strip->left - reach, from.x, to.x) - from.x);
    double high =
        isUpright ? to.y : from.y + slope * (std::clamp(strip->right + reach, from.x, to.x) - from.x);
    if (low > high) std::swap(low, high);
    InStrip(*strip, low - reach, high + reach, effort, [&](const Entry& entry) {
      if (IsNear(entry.at, from, to, distance)) action(entry.index);
    });
    if (effort.IsSpent()) return;
  }
}

}  // namespace kestrin
