#include "kestrin/board/point_strips.h"

#include <cmath>
#include <limits>

namespace kestrin {
namespace {

/// Up to this many points, a single strip is faster than sorting by x.
constexpr std::size_t kOneStrip = 64;

}  // namespace

void PointStrips::Assign(const std::vector<Point>& points) {
  entries_.clear();
  strips_.clear();
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!std::isfinite(points[i].x) || !std::isfinite(points[i].y)) continue;
    entries_.push_back({points[i], static_cast<std::uint32_t>(i)});
  }
  const auto lower = [](const Entry& a, const Entry& b) { return a.at.y < b.at.y; };
  const auto before = [](const Entry& a, const Entry& b) { return a.at.x < b.at.x; };
  std::size_t inStrip = std::max<std::size_t>(1, entries_.size());
  if (entries_.size() > kOneStrip) {
    inStrip = static_cast<std::size_t>(std::sqrt(static_cast<double>(entries_.size())));
    std::sort(entries_.begin(), entries_.end(), before);
  }
  for (std::size_t begin = 0; begin < entries_.size(); begin += inStrip) {
    const std::size_t end = std::min(begin + inStrip, entries_.size());
    const auto first = entries_.begin() + static_cast<std::ptrdiff_t>(begin);
    const auto last = entries_.begin() + static_cast<std::ptrdiff_t>(end);
    const auto [left, right] = std::minmax_element(first, last, before);
    strips_.push_back({.left = left->at.x, .right = right->at.x, .begin = begin, .end = end});
    std::sort(first, last, lower);
  }
}

/// The first strip whose right edge is not left of an x coordinate.
std::vector<PointStrips::Strip>::const_iterator PointStrips::FirstStrip(double left) const {
  return std::lower_bound(strips_.begin(), strips_.end(), left,
                          [](const Strip& strip, double x) { return strip.right < x; });
}

/// Gathers the points in the bounding box of a polygon, sorted by y.
void PointStrips::GatherCandidates(const Polygon& polygon, Effort& effort) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  Point low{kInfinity, kInfinity};
  Point high{-kInfinity, -kInfinity};
  for (const Point& point : polygon) {
    low = {std::min(low.x, point.x), std::min(low.y, point.y)};
    high = {std::max(high.x, point.x), std::max(high.y, point.y)};
  }
  candidates_.clear();
  for (auto strip = FirstStrip(low.x); strip != strips_.end() && strip->left <= high.x; ++strip) {
    InStrip(*strip, low.y, high.y, effort, [&](const Entry& entry) { candidates_.push_back({entry}); });
  }
  std::sort(candidates_.begin(), candidates_.end(),
            [](const Candidate& a, const Candidate& b) { return a.entry.at.y < b.entry.at.y; });
}

const std::vector<std::uint32_t>& PointStrips::Inside(const Polygon& polygon, Effort& effort) {
  inside_.clear();
  if (polygon.size() < 3 || entries_.empty() || !effort.Spend(polygon.size())) return inside_;
  GatherCandidates(polygon, effort);
  if (candidates_.empty()) return inside_;
  Point a = polygon.back();
  for (const Point& b : polygon) {
    const Point& low = a.y < b.y ? a : b;
    const Point& high = a.y < b.y ? b : a;
    auto candidate = std::lower_bound(candidates_.begin(), candidates_.end(), low.y,
                                      [](const Candidate& c, double y) { return c.entry.at.y < y; });
    for (; candidate != candidates_.end() && candidate->entry.at.y < high.y; ++candidate) {
      if (!effort.Spend(1)) return inside_;
      const Point at = candidate->entry.at;
      const double crossing = low.x + (high.x - low.x) * ((at.y - low.y) / (high.y - low.y));
      if (at.x < crossing) candidate->isInside = !candidate->isInside;
    }
    a = b;
  }
  for (const Candidate& candidate : candidates_) {
    if (candidate.isInside) inside_.push_back(candidate.entry.index);
  }
  return inside_;
}

}  // namespace kestrin
