#include "kestrin/board/fit.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "kestrin/board/placement.h"
#include "kestrin/board/possible_places.h"
#include "kestrin/board/read_board.h"
#include "kestrin/board/touch_search.h"

namespace kestrin {
namespace {

/// A reading: the index of a turn for each side.
struct Choice {
  std::size_t top = 0;
  std::size_t bottom = 0;

  [[nodiscard]] Turns AsTurns() const { return {Bit(top), Bit(bottom)}; }
};

/// Counts for each turn of each side.
using TurnCounts = std::array<std::array<std::int64_t, kMostTurns>, kSides>;

[[nodiscard]] std::int64_t CountOf(const TurnCounts& counts, Choice choice) {
  return counts[0][choice.top] + counts[1][choice.bottom];
}

/// Changes the counts of the turns that put a pin at a place.
void Count(TurnCounts& counts, const Place& place, int change) {
  for (std::size_t turn = 0; turn < kMostTurns; ++turn) {
    if ((place.turns & Bit(turn)) != 0) counts[At(place.side)][turn] += change;
  }
}

[[nodiscard]] bool HasCopper(const Net& net) {
  return net.tracks.count != 0 || net.vias.count != 0 ||
         std::any_of(net.areas.begin(), net.areas.end(),
                     [](const Area& area) { return area.outline.size() > 2; });
}

/// Counts the pins that touch copper under the readings, as far as is necessary to choose one.
///
/// Every pin is tested where the chosen reading places it. Under the other readings, pins are only tested
/// until none of these readings can have as many pins that touch. That takes a few nets if the files agree.
class PlacementFit {
 public:
  PlacementFit(const Board& board, const Footprints& footprints, const BoardOptions& options)
      : open_(OpenTurns(options)), possible_(board, footprints, open_), search_(board) {
    for (const Net& net : board.nets) {
      if (net.pins.count != 0 && HasCopper(net)) nets_.push_back(&net);
    }
  }

  void CountPins() {
    constexpr std::int64_t kPinsForGuess = 1000;
    std::size_t first = 0;
    while (first < nets_.size() && counted_ < kPinsForGuess) {
      Gather(*nets_[first]);
      Test(*nets_[first++], open_);
    }
    const Choice leading = Best();
    for (std::size_t i = first; i < nets_.size(); ++i) {
      Gather(*nets_[i]);
      Test(*nets_[i], leading.AsTurns());
    }
    for (std::size_t i = first; i < nets_.size() && HasRival(leading); ++i) {
      possible_.Gather(*nets_[i], places_);
      TestRivals(*nets_[i], leading);
    }
  }

  /// A reading completed with the best placement.
  [[nodiscard]] Reading Complete(Reading reading) const {
    const Choice best = Best();
    reading.rotation = TurnsOf(Side::kTop)[best.top].sense;
    reading.bottom = TurnsOf(Side::kBottom)[best.bottom].sense;
    reading.bottomTurn = TurnsOf(Side::kBottom)[best.bottom].added;
    reading.pinsTouching = static_cast<std::size_t>(CountOf(touching_, best));
    reading.pinsCounted = static_cast<std::size_t>(counted_);
    reading.isConfirmed = IsConfirmed(best);
    return reading;
  }

 private:
  /// Gathers the places of a net's pins, and counts the pins.
  void Gather(const Net& net) {
    counted_ += static_cast<std::int64_t>(possible_.Gather(net, places_));
    for (const Place& place : places_) {
      for (std::size_t turn = 0; turn < kMostTurns; ++turn) {
        if ((place.turns & Bit(turn)) != 0)
          differing_[At(place.side)][turn] |= static_cast<TurnSet>(~place.turns);
      }
    }
  }

  /// Tests the gathered places of some turns. The others are left untested.
  void Test(const Net& net, Turns turns) {
    const auto untested = std::partition(places_.begin(), places_.end(), [&](const Place& place) {
      return (place.turns & turns[At(place.side)]) != 0;
    });
    std::for_each(untested, places_.end(), [&](const Place& place) { Count(untested_, place, 1); });
    places_.erase(untested, places_.end());
    Test(net);
  }

  /// Tests the gathered places that were left untested when those of the leading reading were tested.
  void TestRivals(const Net& net, Choice leading) {
    const Turns tested = leading.AsTurns();
    std::erase_if(places_, [&](const Place& place) { return (place.turns & tested[At(place.side)]) != 0; });
    for (const Place& place : places_) Count(untested_, place, -1);
    Test(net);
  }

  /// Tests all gathered places.
  void Test(const Net& net) {
    points_.clear();
    for (const Place& place : places_) points_.push_back(place.point);
    if (points_.empty()) return;
    const std::vector<bool>& touches = search_.Find(points_, net);
    for (std::size_t i = 0; i < places_.size(); ++i) {
      if (touches[i]) Count(touching_, places_[i], 1);
    }
  }

  /// Whether another reading may still have as many pins that touch as the leading one.
  [[nodiscard]] bool HasRival(Choice leading) const {
    bool hasRival = false;
    ForEachChoice([&](Choice other) {
      const std::int64_t untested = CountOf(untested_, other);
      if (untested > 0 && CountOf(touching_, other) + untested >= CountOf(touching_, leading))
        hasRival = true;
    });
    return hasRival;
  }

  /// Calls an action with every open reading, in order.
  template <class Action>
  void ForEachChoice(Action action) const {
    for (std::size_t top = 0; top < kMostTurns; ++top) {
      for (std::size_t bottom = 0; bottom < kMostTurns; ++bottom) {
        if ((open_[0] & Bit(top)) != 0 && (open_[1] & Bit(bottom)) != 0) action(Choice{top, bottom});
      }
    }
  }

  /// The first of the readings with the most pins that touch.
  [[nodiscard]] Choice Best() const {
    std::optional<Choice> best;
    ForEachChoice([&](Choice choice) {
      if (!best || CountOf(touching_, choice) > CountOf(touching_, *best)) best = choice;
    });
    return best.value_or(Choice{});
  }

  [[nodiscard]] bool IsConfirmed(Choice best) const {
    constexpr std::int64_t kLeastPins = 4;
    const std::int64_t touching = CountOf(touching_, best);
    if (touching < kLeastPins || touching < counted_ - touching) return false;
    bool isAlone = true;
    ForEachChoice([&](Choice other) {
      const bool differs = (differing_[0][best.top] & Bit(other.top)) != 0 ||
                           (differing_[1][best.bottom] & Bit(other.bottom)) != 0;
      if (differs && CountOf(touching_, other) >= touching) isAlone = false;
    });
    return isAlone;
  }

  const Turns open_;
  const PossiblePlaces possible_;
  TouchSearch search_;
  std::vector<const Net*> nets_;  // with pins and copper
  std::int64_t counted_ = 0;
  TurnCounts touching_{};
  TurnCounts untested_{};
  std::array<std::array<TurnSet, kMostTurns>, kSides> differing_{};  // the turns that put a pin elsewhere
  std::vector<Place> places_;                                        // of one net
  std::vector<Point> points_;                                        // of the places
};

}  // namespace

Reading FitPlacement(const Board& board, const Footprints& footprints, const BoardOptions& options) {
  PlacementFit fit(board, footprints, options);
  fit.CountPins();
  Reading reading = fit.Complete(board.reading);
  const bool isOpen = !options.rotation || !options.bottom || !options.bottomTurn;
  reading.isFitted = isOpen && reading.pinsCounted > 0;
  return reading;
}

}  // namespace kestrin
