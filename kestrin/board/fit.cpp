#include "kestrin/board/fit.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <optional>
#include <vector>

#include "kestrin/board/placement.h"
#include "kestrin/board/point_strips.h"
#include "kestrin/board/read_board.h"

namespace kestrin {
namespace {

constexpr std::size_t kSides = 2;
constexpr std::size_t kMostTurns = 4;  // of a side

/// A set of turns of a side, as bits.
using TurnSet = std::uint8_t;

[[nodiscard]] constexpr TurnSet Bit(std::size_t turn) { return static_cast<TurnSet>(1U << turn); }

/// A possible place of a pin, and the turns of its side that put it there.
struct Place {
  Side side;
  TurnSet turns;
  bool touches = false;
};

/// Marks the places at which pins of one net touch its copper.
class TouchTest {
 public:
  /// The strips are passed in to reuse their memory.
  TouchTest(const std::vector<Point>& points, std::vector<Place>& places, const Net& net, PointStrips& strips)
      : places_(places), net_(net), effort_(SizeOf(points, net)), strips_(strips) {
    strips_.Assign(points);
  }

  void Run() {
    for (const Track& track : net_.tracks) {
      const double distance = std::max(track.width.value_or(0.0) / 2.0, kLeastDistance);
      for (std::size_t i = 1; i < track.points.size(); ++i)
        Touch(track.points[i - 1], track.points[i], distance);
    }
    for (const Via& via : net_.vias) Touch(via.position, via.position, kLeastDistance);
    for (const Area& area : net_.areas) Touch(area);
  }

 private:
  static constexpr double kLeastDistance = 0.001;

  [[nodiscard]] static std::size_t SizeOf(const std::vector<Point>& points, const Net& net) {
    std::size_t size = points.size() + net.vias.size();
    for (const Track& track : net.tracks) size += track.points.size();
    for (const Area& area : net.areas) {
      size += area.outline.size();
      for (const Polygon& hole : area.holes) size += hole.size();
    }
    return size;
  }

  void Touch(Point from, Point to, double distance) {
    strips_.NearLeg(from, to, distance, effort_, [&](std::uint32_t place) { places_[place].touches = true; });
  }

  void Touch(const Area& area) {
    inArea_.clear();
    for (const std::uint32_t place : strips_.Inside(area.outline, effort_)) {
      if (!places_[place].touches) inArea_.push_back(place);
    }
    if (inArea_.empty()) return;
    std::sort(inArea_.begin(), inArea_.end());
    std::vector<bool> inHole(inArea_.size());
    for (const Polygon& hole : area.holes) {
      for (const std::uint32_t place : strips_.Inside(hole, effort_)) {
        const auto found = std::lower_bound(inArea_.begin(), inArea_.end(), place);
        if (found != inArea_.end() && *found == place)
          inHole[static_cast<std::size_t>(found - inArea_.begin())] = true;
      }
    }
    if (effort_.IsSpent()) return;  // a hole may have been missed
    for (std::size_t i = 0; i < inArea_.size(); ++i) {
      if (!inHole[i]) places_[inArea_[i]].touches = true;
    }
  }

  std::vector<Place>& places_;
  const Net& net_;
  Effort effort_;
  PointStrips& strips_;
  std::vector<std::uint32_t> inArea_;
};

[[nodiscard]] bool HasCopper(const Net& net) {
  return !net.tracks.empty() || !net.vias.empty() ||
         std::any_of(net.areas.begin(), net.areas.end(),
                     [](const Area& area) { return area.outline.size() > 2; });
}

/// Counts the pins that touch copper, for every turn.
class PlacementFit {
 public:
  PlacementFit(const Board& board, const Footprints& footprints, const BoardOptions& options)
      : board_(board) {
    parts_.reserve(board.components.size());
    for (const Component& component : board.components) {
      parts_.push_back({.place = component.transform,
                        .footprint = component.pins.empty() ? nullptr : &footprints.Of(component),
                        .rotation = component.rotation,
                        .side = component.side});
    }
    for (const Side side : {Side::kTop, Side::kBottom}) {
      const auto turns = TurnsOf(side);
      for (std::size_t i = 0; i < turns.size(); ++i) {
        if (IsOpen(side, turns[i], options)) open_[At(side)] |= Bit(i);
      }
    }
  }

  void CountPins() {
    for (const Net& net : board_.nets) {
      if (!net.pins.empty() && HasCopper(net)) CountPins(net);
    }
  }

  /// The first of the best readings.
  [[nodiscard]] Reading Best(Reading reading) const {
    std::size_t bestTop = 0;
    std::size_t bestBottom = 0;
    std::optional<std::size_t> most;
    ForEachReading([&](std::size_t top, std::size_t bottom) {
      if (most && Touching(top, bottom) <= *most) return;
      most = Touching(top, bottom);
      bestTop = top;
      bestBottom = bottom;
    });
    reading.rotation = TurnsOf(Side::kTop)[bestTop].sense;
    reading.bottom = TurnsOf(Side::kBottom)[bestBottom].sense;
    reading.bottomTurn = TurnsOf(Side::kBottom)[bestBottom].added;
    reading.pinsTouching = Touching(bestTop, bestBottom);
    reading.pinsCounted = counted_;
    reading.isConfirmed = IsConfirmed(bestTop, bestBottom);
    return reading;
  }

 private:
  /// The data of a component that the fit needs, kept compact because nets access components in any order.
  struct Part {
    Transform place;             // not turned yet
    const Footprint* footprint;  // null for a component without pins
    int rotation;
    Side side;
  };

  [[nodiscard]] static std::size_t At(Side side) { return static_cast<std::size_t>(side); }

  [[nodiscard]] static bool IsOpen(Side side, Turn turn, const BoardOptions& options) {
    if (side == Side::kTop) return options.rotation.value_or(turn.sense) == turn.sense;
    const int added =
        options.bottomTurn && *options.bottomTurn != 180 ? 0 : options.bottomTurn.value_or(turn.added);
    return options.bottom.value_or(turn.sense) == turn.sense && added == turn.added;
  }

  void CountPins(const Net& net) {
    points_.clear();
    places_.clear();
    for (const NetPin& pin : net.pins) {
      if (pin.pin) AddPlaces(parts_[*pin.component], *pin.pin);
    }
    if (places_.empty()) return;
    TouchTest(points_, places_, net, strips_).Run();
    for (const Place& place : places_) {
      if (!place.touches) continue;
      for (std::size_t turn = 0; turn < kMostTurns; ++turn) {
        if ((place.turns & Bit(turn)) != 0) ++touching_[At(place.side)][turn];
      }
    }
  }

  /// Adds the places of a pin and of all pins that share its name.
  void AddPlaces(const Part& part, std::size_t pin) {
    const std::vector<FootprintPin>& pins = part.footprint->pins;
    for (; pin < pins.size(); pin = pins[pin].nextOfName) AddPlaces(part, pins[pin].position);
  }

  /// Adds the places of a pin under all open turns, without duplicates.
  void AddPlaces(const Part& part, Point onGeometry) {
    ++counted_;
    const auto turns = TurnsOf(part.side);
    const std::size_t first = points_.size();
    Transform transform = part.place;
    for (std::size_t turn = 0; turn < turns.size(); ++turn) {
      if ((open_[At(part.side)] & Bit(turn)) == 0) continue;
      rotations_.Turn(transform, DegreesOf(part.rotation, turns[turn]));
      const Point point = transform.Apply(onGeometry);
      const auto same = static_cast<std::size_t>(
          std::find(points_.begin() + static_cast<std::ptrdiff_t>(first), points_.end(), point) -
          points_.begin());
      if (same == points_.size()) {
        points_.push_back(point);
        places_.push_back({part.side, 0});
      }
      places_[same].turns |= Bit(turn);
    }
    for (std::size_t i = first; i < places_.size(); ++i) NoteDiffering(places_[i]);
  }

  void NoteDiffering(const Place& place) {
    for (std::size_t turn = 0; turn < kMostTurns; ++turn) {
      if ((place.turns & Bit(turn)) != 0)
        differing_[At(place.side)][turn] |= static_cast<TurnSet>(~place.turns);
    }
  }

  /// Calls an action with the turns of every open reading, in order.
  template <class Action>
  void ForEachReading(Action action) const {
    for (std::size_t top = 0; top < TurnsOf(Side::kTop).size(); ++top) {
      for (std::size_t bottom = 0; bottom < TurnsOf(Side::kBottom).size(); ++bottom) {
        if ((open_[0] & Bit(top)) != 0 && (open_[1] & Bit(bottom)) != 0) action(top, bottom);
      }
    }
  }

  [[nodiscard]] std::size_t Touching(std::size_t top, std::size_t bottom) const {
    return touching_[0][top] + touching_[1][bottom];
  }

  [[nodiscard]] bool IsConfirmed(std::size_t top, std::size_t bottom) const {
    constexpr std::size_t kLeastPins = 4;
    const std::size_t touching = Touching(top, bottom);
    if (touching < kLeastPins || touching < counted_ - touching) return false;
    bool isAlone = true;
    ForEachReading([&](std::size_t otherTop, std::size_t otherBottom) {
      const bool differs =
          (differing_[0][top] & Bit(otherTop)) != 0 || (differing_[1][bottom] & Bit(otherBottom)) != 0;
      if (differs && Touching(otherTop, otherBottom) >= touching) isAlone = false;
    });
    return isAlone;
  }

  const Board& board_;
  std::vector<Part> parts_;
  const Rotations rotations_;
  std::array<TurnSet, kSides> open_{};
  std::array<std::array<std::size_t, kMostTurns>, kSides> touching_{};
  std::array<std::array<TurnSet, kMostTurns>, kSides> differing_{};  // the turns that put a pin elsewhere
  std::size_t counted_ = 0;
  std::vector<Point> points_;  // of one net
  std::vector<Place> places_;  // at the same indexes
  PointStrips strips_;
};

}  // namespace

Reading FitPlacement(const Board& board, const Footprints& footprints, const BoardOptions& options) {
  PlacementFit fit(board, footprints, options);
  fit.CountPins();
  Reading reading = fit.Best(board.reading);
  const bool isOpen = !options.rotation || !options.bottom || !options.bottomTurn;
  reading.isFitted = isOpen && reading.pinsCounted > 0;
  return reading;
}

}  // namespace kestrin
