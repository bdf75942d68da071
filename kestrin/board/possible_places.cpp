#include "kestrin/board/possible_places.h"

#include <algorithm>

#include "kestrin/board/read_board.h"

namespace kestrin {
namespace {

[[nodiscard]] bool IsOpen(Side side, Turn turn, const BoardOptions& options) {
  if (side == Side::kTop) return options.rotation.value_or(turn.sense) == turn.sense;
  const int added =
      options.bottomTurn && *options.bottomTurn != 180 ? 0 : options.bottomTurn.value_or(turn.added);
  return options.bottom.value_or(turn.sense) == turn.sense && added == turn.added;
}

}  // namespace

Turns OpenTurns(const BoardOptions& options) {
  Turns open{};
  for (const Side side : {Side::kTop, Side::kBottom}) {
    const auto turns = TurnsOf(side);
    for (std::size_t i = 0; i < turns.size(); ++i) {
      if (IsOpen(side, turns[i], options)) open[At(side)] |= Bit(i);
    }
  }
  return open;
}

PossiblePlaces::PossiblePlaces(const Board& board, const Footprints& footprints, Turns open) : board_(board) {
  constexpr int kFullTurn = 360;
  const Rotations rotations;
  for (const Side side : {Side::kTop, Side::kBottom}) {
    for (int degrees = 0; degrees < kFullTurn; ++degrees) {
      orientations_[At(side)].push_back(OrientationsOf(side, degrees, open[At(side)], rotations));
    }
  }
  parts_.reserve(board.components.size());
  for (const Component& component : board.components) {
    const auto degrees =
        static_cast<std::size_t>(DegreesOf(component.rotation, {Sense::kCounterClockwise, 0}));
    parts_.push_back({.place = component.transform,
                      .footprint = component.pins.count == 0 ? nullptr : &footprints.Of(component),
                      .orientations = &orientations_[At(component.side)][degrees],
                      .firstPin = component.pins.first,
                      .side = component.side});
  }
}

PossiblePlaces::Orientations PossiblePlaces::OrientationsOf(Side side, int degrees, TurnSet open,
                                                            const Rotations& rotations) {
  Orientations orientations;
  std::array<int, kMostTurns> rotated{};
  std::size_t count = 0;
  const auto turns = TurnsOf(side);
  for (std::size_t turn = 0; turn < turns.size(); ++turn) {
    if ((open & Bit(turn)) == 0) continue;
    const int angle = DegreesOf(degrees, turns[turn]);
    const auto same = static_cast<std::size_t>(std::find(rotated.begin(), rotated.begin() + count, angle) -
                                               rotated.begin());
    if (same == count) {
      rotated[count++] = angle;
      Transform transform;
      rotations.Turn(transform, angle);
      orientations[same] = {.cosine = transform.cosine, .sine = transform.sine};
    }
    orientations[same].turns |= Bit(turn);
  }
  return orientations;
}

std::size_t PossiblePlaces::Gather(const Net& net, std::vector<Place>& places) const {
  places.clear();
  std::size_t pads = 0;
  for (const NetPin& pin : board_.PinsOf(net)) {
    if (!pin.pin) continue;
    const Part& part = parts_[*pin.component];
    const std::vector<FootprintPin>& pins = part.footprint->pins;
    for (Index pad = *pin.pin - part.firstPin; pad < pins.size(); pad = pins[pad].nextOfName) {
      AddPlaces(part, pins[pad].position, places);
      ++pads;
    }
  }
  return pads;
}

/// Different orientations may put a pin at the same place, such as a pin at the origin.
void PossiblePlaces::AddPlaces(const Part& part, Point onGeometry, std::vector<Place>& places) {
  const std::size_t first = places.size();
  Transform transform = part.place;
  for (const Orientation& orientation : *part.orientations) {
    if (orientation.turns == 0) return;
    transform.cosine = orientation.cosine;
    transform.sine = orientation.sine;
    const Point point = transform.Apply(onGeometry);
    std::size_t same = first;
    while (same < places.size() && !(places[same].point == point)) ++same;
    if (same == places.size()) places.push_back({.point = point, .side = part.side, .turns = 0});
    places[same].turns |= orientation.turns;
  }
}

}  // namespace kestrin
