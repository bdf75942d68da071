#include "kestrin/board/pin_tests.h"

#include <algorithm>

namespace kestrin {
namespace {

/// Calls an action with every turn of a set.
template <class Action>
void ForEachTurn(TurnSet turns, Action action) {
  for (std::size_t turn = 0; turn < kMostTurns; ++turn) {
    if ((turns & Bit(turn)) != 0) action(turn);
  }
}

/// Changes the counts of the turns that put a pin at a place.
void Count(TurnCounts& counts, const Place& place, int change) {
  ForEachTurn(place.turns, [&](std::size_t turn) { counts[At(place.side)][turn] += change; });
}

}  // namespace

void TouchCounts::Add(const TouchCounts& other) {
  pins += other.pins;
  for (std::size_t side = 0; side < kSides; ++side) {
    for (std::size_t turn = 0; turn < kMostTurns; ++turn) {
      touching[side][turn] += other.touching[side][turn];
      untested[side][turn] += other.untested[side][turn];
      differing[side][turn] |= other.differing[side][turn];
    }
  }
}

void PinTests::Test(const Net& net, Turns turns, TouchCounts& counts) {
  counts.pins += static_cast<std::int64_t>(possible_.Gather(net, places_));
  for (const Place& place : places_) {
    ForEachTurn(place.turns, [&](std::size_t turn) {
      counts.differing[At(place.side)][turn] |= static_cast<TurnSet>(~place.turns);
    });
  }
  const auto untested = std::partition(places_.begin(), places_.end(), [&](const Place& place) {
    return (place.turns & turns[At(place.side)]) != 0;
  });
  std::for_each(untested, places_.end(), [&](const Place& place) { Count(counts.untested, place, 1); });
  places_.erase(untested, places_.end());
  TestPlaces(net, counts);
}

void PinTests::TestRest(const Net& net, Turns tested, TouchCounts& counts) {
  possible_.Gather(net, places_);
  std::erase_if(places_, [&](const Place& place) { return (place.turns & tested[At(place.side)]) != 0; });
  for (const Place& place : places_) Count(counts.untested, place, -1);
  TestPlaces(net, counts);
}

void PinTests::TestPlaces(const Net& net, TouchCounts& counts) {
  points_.clear();
  for (const Place& place : places_) points_.push_back(place.point);
  if (points_.empty()) return;
  const std::vector<bool>& touches = search_.Find(points_, net);
  for (std::size_t i = 0; i < places_.size(); ++i) {
    if (touches[i]) Count(counts.touching, places_[i], 1);
  }
}

}  // namespace kestrin
