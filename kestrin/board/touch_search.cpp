#include "kestrin/board/touch_search.h"

#include <algorithm>
#include <optional>

#include "kestrin/board/millimetres.h"

namespace kestrin {
namespace {

constexpr double kLeastDistance = 0.001;
static_assert(PointTable::kNear < kLeastDistance);

}  // namespace

const std::vector<bool>& TouchSearch::Find(const std::vector<Point>& points, const Net& net) {
  touches_.assign(points.size(), false);
  left_ = points.size();
  table_.Assign(points);
  FindAtEnds(net);
  if (left_ == 0) return touches_;
  rest_.clear();
  indexes_.clear();
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (touches_[i]) continue;
    rest_.push_back(points[i]);
    indexes_.push_back(i);
  }
  strips_.Assign(rest_);
  Effort effort = EffortFor(net);
  for (const Track& track : board_.TracksOf(net)) {
    const double distance = std::max(track.width.value_or(0.0) / 2.0, kLeastDistance);
    const std::span<const Point> vertices = board_.PointsOf(track);
    for (std::size_t i = 1; i < vertices.size(); ++i)
      FindNear(vertices[i - 1], vertices[i], distance, effort);
  }
  for (const Via& via : board_.ViasOf(net)) FindNear(via.position, via.position, kLeastDistance, effort);
  for (const Area& area : net.areas) FindInside(area, effort);
  return touches_;
}

/// Most pins are at the end of a track or at a via.
void TouchSearch::FindAtEnds(const Net& net) {
  const auto take = [&](std::uint32_t index) {
    touches_[index] = true;
    --left_;
  };
  std::optional<Point> last;  // where the next track mostly begins
  for (const Track& track : board_.TracksOf(net)) {
    const std::span<const Point> vertices = board_.PointsOf(track);
    if (vertices.front() != last) table_.TakeNear(vertices.front(), take);
    last = vertices.back();
    table_.TakeNear(*last, take);
    if (left_ == 0) return;
  }
  for (const Via& via : board_.ViasOf(net)) table_.TakeNear(via.position, take);
}

void TouchSearch::FindNear(Point from, Point to, double distance, Effort& effort) {
  const auto take = [&](std::uint32_t index) { touches_[indexes_[index]] = true; };
  if (IsFinite(from) && IsFinite(to)) return strips_.TakeNearLeg(from, to, distance, effort, take);
  for (const Point end : {from, to}) {
    if (IsFinite(end)) strips_.TakeNearLeg(end, end, distance, effort, take);
  }
}

void TouchSearch::FindInside(const Area& area, Effort& effort) {
  const auto& inside = strips_.Inside(area.outline, effort);
  inArea_.assign(inside.begin(), inside.end());
  if (inArea_.empty()) return;
  std::sort(inArea_.begin(), inArea_.end());
  std::vector<bool> inHole(inArea_.size());
  for (const Polygon& hole : area.holes) {
    for (const std::uint32_t index : strips_.Inside(hole, effort)) {
      const auto found = std::lower_bound(inArea_.begin(), inArea_.end(), index);
      if (found != inArea_.end() && *found == index)
        inHole[static_cast<std::size_t>(found - inArea_.begin())] = true;
    }
  }
  if (effort.IsSpent()) return;  // a hole may have been missed
  for (std::size_t i = 0; i < inArea_.size(); ++i) {
    if (!inHole[i]) touches_[indexes_[inArea_[i]]] = true;
  }
}

Effort TouchSearch::EffortFor(const Net& net) const {
  std::size_t size = rest_.size() + net.vias.count;
  for (const Track& track : board_.TracksOf(net)) size += track.points.count;
  for (const Area& area : net.areas) {
    size += area.outline.size();
    for (const Polygon& hole : area.holes) size += hole.size();
  }
  return Effort(size);
}

}  // namespace kestrin
