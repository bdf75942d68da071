#pragma once

/// @file
/// The positions of components and their pins.
///
/// Convention: a point of a geometry is mirrored if the component is on the bottom, then rotated, then moved
/// to the component's origin. CAD systems commonly place components this way. The direction of rotation
/// differs between systems and is not in the files, so it is fitted.

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
  int added;  // to the angle, in degrees
};

/// The ways that are tried, in order. Of equally good ones, the fit takes the first.
[[nodiscard]] std::span<const Turn> TurnsOf(Side side);

/// The angle of a component: degrees counter-clockwise, from 0 to 359.
[[nodiscard]] int DegreesOf(int rotation, Turn turn);

/// The cosines and sines of whole degrees, exact for right angles.
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

/// Adds the components to the board; PlaceComponents places their pins later. The components may be null.
/// Records is the number of records that the pins come from, and limits the number of pins.
void ReadComponents(const CMComps* components, std::size_t records, const Footprints& footprints,
                    Board& board);

/// Places components and pins according to the board's reading.
void PlaceComponents(const Footprints& footprints, Board& board);

}  // namespace kestrin
