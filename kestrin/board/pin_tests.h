#pragma once

/// @file
/// Testing where pins touch copper.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "kestrin/board/board.h"
#include "kestrin/board/possible_places.h"
#include "kestrin/board/touch_search.h"

namespace kestrin {

/// Counts for each turn of each side.
using TurnCounts = std::array<std::array<std::int64_t, kMostTurns>, kSides>;

/// What tests of pins find out.
struct TouchCounts {
  std::int64_t pins = 0;
  TurnCounts touching{};                                            // copper of their net
  TurnCounts untested{};                                            // pins that may touch
  std::array<std::array<TurnSet, kMostTurns>, kSides> differing{};  // the turns that put a pin elsewhere

  void Add(const TouchCounts& other);
};

/// Tests pins net by net. Objects with the same possible places may be used at the same time.
class PinTests {
 public:
  PinTests(const Board& board, const PossiblePlaces& possible) : possible_(possible), search_(board) {}

  /// Counts the pins of a net, and tests where some turns put them. The other places are left untested.
  void Test(const Net& net, Turns turns, TouchCounts& counts);

  /// Tests the places of a net's pins that were left untested.
  void TestRest(const Net& net, Turns tested, TouchCounts& counts);

 private:
  void TestPlaces(const Net& net, TouchCounts& counts);

  const PossiblePlaces& possible_;
  TouchSearch search_;
  std::vector<Place> places_;  // of one net
  std::vector<Point> points_;  // of the places
};

}  // namespace kestrin
