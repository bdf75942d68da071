#pragma once

/// @file
/// The places that a pin may have while the reading is open.

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "kestrin/board/board.h"
#include "kestrin/board/footprints.h"
#include "kestrin/board/placement.h"

namespace kestrin {

struct BoardOptions;

inline constexpr std::size_t kSides = 2;
inline constexpr std::size_t kMostTurns = 4;  // of a side

/// A set of turns of a side, as bits.
using TurnSet = std::uint8_t;

/// A set of turns for each side.
using Turns = std::array<TurnSet, kSides>;

[[nodiscard]] constexpr TurnSet Bit(std::size_t turn) { return static_cast<TurnSet>(1U << turn); }
[[nodiscard]] constexpr std::size_t At(Side side) { return static_cast<std::size_t>(side); }

/// The turns that the options leave open.
[[nodiscard]] Turns OpenTurns(const BoardOptions& options);

/// A place of a pin, and the turns of its side that put it there.
struct Place {
  Point point;
  Side side;
  TurnSet turns;
};

/// Computes the possible places of pins.
class PossiblePlaces {
 public:
  /// The board must outlive it.
  PossiblePlaces(const Board& board, const Footprints& footprints, Turns open);

  /// Gathers the places of the pins of a net, without duplicates. Returns the number of pins: those of a
  /// component that share a name are pads of one pin of the net, and each counts.
  std::size_t Gather(const Net& net, std::vector<Place>& places) const;

 private:
  /// A rotation of components, and the turns that rotate them so.
  struct Orientation {
    double cosine = 1.0;
    double sine = 0.0;
    TurnSet turns = 0;
  };
  /// All orientations of the components with an angle. Empty ones are at the end.
  using Orientations = std::array<Orientation, kMostTurns>;

  /// The data of a component that is needed here, kept compact because nets access components in any order.
  struct Part {
    Transform place;             // not rotated yet
    const Footprint* footprint;  // null for a component without pins
    const Orientations* orientations;
    Index firstPin;  // in Board::pins
    Side side;
  };

  [[nodiscard]] static Orientations OrientationsOf(Side side, int degrees, TurnSet open,
                                                   const Rotations& rotations);
  static void AddPlaces(const Part& part, Point onGeometry, std::vector<Place>& places);

  const Board& board_;
  std::array<std::vector<Orientations>, kSides> orientations_;  // by degrees
  std::vector<Part> parts_;                                     // for each component
};

}  // namespace kestrin
