#include "python/legs.h"

#include <limits>

namespace kestrin::python {
namespace {

void Reserve(Legs& legs, std::size_t count) {
  tool::ForEachFieldOf<Legs>([&](const auto& field) { (legs.*field.getter).reserve(count); });
}

void Append(Legs& legs, const Board& board, const Track& track, Index net) {
  const std::span<const Point> points = board.PointsOf(track);
  const double width = track.width.value_or(std::numeric_limits<double>::quiet_NaN());
  for (std::size_t i = 1; i < points.size(); ++i) {
    legs.x1.push_back(points[i - 1].x);
    legs.y1.push_back(points[i - 1].y);
    legs.x2.push_back(points[i].x);
    legs.y2.push_back(points[i].y);
  }
  const std::size_t count = legs.x1.size();
  legs.layer.resize(count, track.layer);
  legs.width.resize(count, width);
  legs.net.resize(count, net);
}

}  // namespace

Legs LegsOf(const Board& board) {
  Legs legs;
  Reserve(legs, LegsBefore(board, board.tracks.size()));
  for (Index net = 0; net < board.nets.size(); ++net) {
    for (const Track& track : board.TracksOf(board.nets[net])) Append(legs, board, track, net);
  }
  return legs;
}

std::size_t LegsBefore(const Board& board, std::size_t track) {
  // Each track has a leg less than points, and the points are in the order of the tracks.
  return (track < board.tracks.size() ? board.tracks[track].points.first : board.points.size()) - track;
}

}  // namespace kestrin::python
