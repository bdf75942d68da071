#include "python/legs.h"

#include <limits>
#include <span>

namespace kestrin::python {

Legs LegsOf(const Board& board) {
  Legs legs(LegsBefore(board, board.tracks.size()));
  std::size_t leg = 0;
  for (Index net = 0; net < board.nets.size(); ++net) {
    for (const Track& track : board.TracksOf(board.nets[net])) {
      const std::span<const Point> points = board.PointsOf(track);
      const double width = track.width.value_or(std::numeric_limits<double>::quiet_NaN());
      for (std::size_t i = 1; i < points.size(); ++i, ++leg) {
        legs.x1[leg] = points[i - 1].x;
        legs.y1[leg] = points[i - 1].y;
        legs.x2[leg] = points[i].x;
        legs.y2[leg] = points[i].y;
        legs.layer[leg] = track.layer;
        legs.width[leg] = width;
        legs.net[leg] = net;
      }
    }
  }
  return legs;
}

std::size_t LegsBefore(const Board& board, std::size_t track) {
  // Each track has a leg less than points, and the points are in the order of the tracks.
  return (track < board.tracks.size() ? board.tracks[track].points.first : board.points.size()) - track;
}

}  // namespace kestrin::python
