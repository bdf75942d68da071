#include "kestrin/board/fit.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "kestrin/base/side_by_side.h"
#include "kestrin/board/pin_tests.h"
#include "kestrin/board/placement.h"
#include "kestrin/board/possible_places.h"
#include "kestrin/board/read_board.h"

namespace kestrin {
namespace {

/// A reading: the index of a turn for each side.
struct Choice {
  std::size_t top = 0;
  std::size_t bottom = 0;

  [[nodiscard]] Turns AsTurns() const { return {Bit(top), Bit(bottom)}; }
};

[[nodiscard]] std::int64_t CountOf(const TurnCounts& counts, Choice choice) {
  return counts[0][choice.top] + counts[1][choice.bottom];
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
      : board_(board), open_(OpenTurns(options)), possible_(board, footprints, open_) {
    for (const Net& net : board.nets) {
      if (net.pins.count != 0 && HasCopper(net)) nets_.push_back(&net);
    }
  }

  void CountPins(bool isWorthThread) {
    constexpr std::int64_t kPinsForGuess = 1000;
    PinTests tests(board_, possible_);
    std::span<const Net* const> rest = nets_;
    for (; !rest.empty() && counts_.pins < kPinsForGuess; rest = rest.subspan(1))
      tests.Test(*rest.front(), open_, counts_);
    const Choice leading = Best();
    TestInHalves(rest, leading.AsTurns(), isWorthThread);
    for (; !rest.empty() && HasRival(leading); rest = rest.subspan(1))
      tests.TestRest(*rest.front(), leading.AsTurns(), counts_);
  }

  /// A reading completed with the best placement.
  [[nodiscard]] Reading Complete(Reading reading) const {
    const Choice best = Best();
    reading.rotation = TurnsOf(Side::kTop)[best.top].sense;
    reading.bottom = TurnsOf(Side::kBottom)[best.bottom].sense;
    reading.bottomTurn = TurnsOf(Side::kBottom)[best.bottom].added;
    reading.pinsTouching = static_cast<std::size_t>(CountOf(counts_.touching, best));
    reading.pinsCounted = static_cast<std::size_t>(counts_.pins);
    reading.isConfirmed = IsConfirmed(best);
    return reading;
  }

 private:
  /// Tests the pins of nets where some turns put them, half of the nets in a second thread if that is worth
  /// it.
  void TestInHalves(std::span<const Net* const> nets, Turns turns, bool isWorthThread) {
    const auto test = [&](std::span<const Net* const> half) {
      TouchCounts counts;
      PinTests tests(board_, possible_);
      for (const Net* net : half) tests.Test(*net, turns, counts);
      return counts;
    };
    const std::size_t half = nets.size() / 2;
    TouchCounts second;
    RunSideBySide(
        isWorthThread, [&] { counts_.Add(test(nets.first(half))); },
        [&] { second = test(nets.subspan(half)); });
    counts_.Add(second);
  }

  /// Whether another reading may still have as many pins that touch as the leading one.
  [[nodiscard]] bool HasRival(Choice leading) const {
    bool hasRival = false;
    ForEachChoice([&](Choice other) {
      const std::int64_t untested = CountOf(counts_.untested, other);
      if (untested > 0 && CountOf(counts_.touching, other) + untested >= CountOf(counts_.touching, leading))
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
      if (!best || CountOf(counts_.touching, choice) > CountOf(counts_.touching, *best)) best = choice;
    });
    return best.value_or(Choice{});
  }

  [[nodiscard]] bool IsConfirmed(Choice best) const {
    constexpr std::int64_t kLeastPins = 4;
    const std::int64_t touching = CountOf(counts_.touching, best);
    if (touching < kLeastPins || touching < counts_.pins - touching) return false;
    bool isAlone = true;
    ForEachChoice([&](Choice other) {
      const bool differs = (counts_.differing[0][best.top] & Bit(other.top)) != 0 ||
                           (counts_.differing[1][best.bottom] & Bit(other.bottom)) != 0;
      if (differs && CountOf(counts_.touching, other) >= touching) isAlone = false;
    });
    return isAlone;
  }

  const Board& board_;
  const Turns open_;
  const PossiblePlaces possible_;
  std::vector<const Net*> nets_;  // with pins and copper
  TouchCounts counts_;
};

}  // namespace

Reading FitPlacement(const Board& board, const Footprints& footprints, const BoardOptions& options,
                     bool isWorthThread) {
  PlacementFit fit(board, footprints, options);
  fit.CountPins(isWorthThread);
  Reading reading = fit.Complete(board.reading);
  const bool isOpen = !options.rotation || !options.bottom || !options.bottomTurn;
  reading.isFitted = isOpen && reading.pinsCounted > 0;
  return reading;
}

}  // namespace kestrin
