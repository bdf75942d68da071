#pragma once

/// @file
/// Where components and their pins are. That a point of a geometry is turned, mirrored first on the bottom,
/// and moved by the origin is convention: it is how components are placed everywhere. Which way they turn
/// differs between systems and is not said in the files; so it is fitted.

#include <array>
#include <cstdint>
#include <span>

#include "kestrin/board/board.h"
#include "kestrin/board/footprints.h"

namespace kestrin {

class CMComps;

/// A way to read the angle of a component.
struct Turn {
  Sense sense;
  int added;  // degrees
};

/// The ways in order: of equally good ones the first is taken.
[[nodiscard]] std::span<const Turn> TurnsOf(Side side);

/// The angle of a component, counter-clockwise from 0 to 359 degrees.
[[nodiscard]] int DegreesOf(int rotation, Turn turn);

/// The cosine and the sine of every whole degree; exact for right angles.
class Rotations {
 public:
  Rotations();
  void Turn(Transform& transform, int degrees) const {
    transform.cosine = cosines_[static_cast<std::size_t>(degrees)];
    transform.sine = sines_[static_cast<std::size_t>(degrees)];
  }

 private:
  std::array<double, 360> cosines_{};
  std::array<double, 360> sines_{};
};

/// Gives the board its components; their pins are not placed yet. The components may be null.
void ReadComponents(const CMComps* components, std::size_t records, const Footprints& footprints,
                    Board& board);

/// Places components and pins as the board's reading says.
void PlaceComponents(const Footprints& footprints, Board& board);

}  // namespace kestrin
