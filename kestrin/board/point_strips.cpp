#include "kestrin/board/point_strips.h"

#include <cmath>
#include <limits>

#include "kestrin/board/millimetres.h"

namespace kestrin {

PointStrips::Scale::Scale(double lowest, double highest, std::size_t parts)
    : low(lowest), partsPerUnit(static_cast<double>(parts) / (highest - lowest)) {
  if (!std::isfinite(partsPerUnit)) partsPerUnit = 0.0;
}

void PointStrips::Assign(const std::vector<Point>& points) {
  entries_.clear();
  strips_.clear();
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!IsFinite(points[i])) continue;
    entries_.push_back({points[i], static_cast<std::uint32_t>(i)});
  }
  if (entries_.empty()) return;
  const auto isLower = [](const Entry& a, const Entry& b) { return a.at.y < b.at.y; };
  const auto isLeft = [](const Entry& a, const Entry& b) { return a.at.x < b.at.x; };
  const auto [lowest, highest] = std::minmax_element(entries_.begin(), entries_.end(), isLower);
  rows_ = Scale(lowest->at.y, highest->at.y, kRows);
  std::sort(entries_.begin(), entries_.end(), isLeft);
  columns_ = Scale(entries_.front().at.x, entries_.back().at.x, kColumns);
  const std::size_t inStrip = PointsInStrip();
  for (std::size_t begin = 0; begin < entries_.size(); begin += inStrip) {
    AddStrip(begin, std::min(begin + inStrip, entries_.size()));
  }
  FillFirstStrips();
}

/// The square root of the number of points, but more for few points, as a long leg visits many strips.
std::size_t PointStrips::PointsInStrip() const {
  constexpr std::size_t kLeast = 4;
  constexpr std::size_t kStrips = 64;
  const std::size_t count = entries_.size();
  const auto root = static_cast<std::size_t>(std::sqrt(static_cast<double>(count)));
  return std::max(kLeast, std::min(root, count / kStrips));
}

void PointStrips::AddStrip(std::size_t begin, std::size_t end) {
  Strip strip{
      .left = entries_[begin].at.x, .right = entries_[end - 1].at.x, .begin = begin, .end = end, .rows = 0};
  for (std::size_t i = begin; i < end; ++i) strip.rows |= std::uint64_t{1} << rows_.PartOf(entries_[i].at.y);
  strips_.push_back(strip);
  std::sort(entries_.begin() + static_cast<std::ptrdiff_t>(begin),
            entries_.begin() + static_cast<std::ptrdiff_t>(end),
            [](const Entry& a, const Entry& b) { return a.at.y < b.at.y; });
}

void PointStrips::FillFirstStrips() {
  std::size_t column = 0;
  for (std::size_t i = 0; i < strips_.size(); ++i) {
    const std::size_t last = columns_.PartOf(strips_[i].right);
    for (; column <= last; ++column) firstStrips_[column] = i;
  }
  std::fill(firstStrips_.begin() + static_cast<std::ptrdiff_t>(column), firstStrips_.end(), strips_.size());
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
  for (std::size_t i = FirstStrip(low.x); i < strips_.size() && strips_[i].left <= high.x; ++i) {
    InStrip(strips_[i], low.y, high.y, effort, [&](const Entry& entry) { candidates_.push_back({entry}); });
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
