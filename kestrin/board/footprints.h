#pragma once

/// @file
/// What component geometries say of pins, once for all components that name them.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "kestrin/board/board.h"
#include "kestrin/board/names.h"

namespace kestrin {

class CMGeom;
class CMGeomComponent;

/// A pin of a geometry.
struct FootprintPin {
  std::string name;
  Point position;  // in the geometry's unit
  std::optional<std::size_t> padstack;
  std::size_t nextOfName = 0;  // the next pin of the geometry with this name; their number for the last
};

/// A component geometry.
struct Footprint {
  std::size_t sourceIndex = 0;
  double unit = 1.0;
  std::vector<FootprintPin> pins;
  NameIndex pinsByName;
};

/// The component geometries. Padstacks go into the board as pins name them.
class Footprints {
 public:
  /// The geometry may be null.
  Footprints(const CMGeom* geometry, Board& board);

  /// Null when no geometry has the name.
  [[nodiscard]] const Footprint* Find(std::string_view name) const {
    const auto found = byName_.Find(name);
    return found ? &footprints_[*found] : nullptr;
  }
  /// Of a component that has a geometry.
  [[nodiscard]] const Footprint& Of(const Component& component) const {
    return footprints_[bySource_[*component.geometryIndex]];
  }

 private:
  void ReadPins(const CMGeomComponent& component, Footprint& footprint);
  [[nodiscard]] std::optional<std::size_t> PadstackNamed(std::string_view name);

  const CMGeom* geometry_;
  Board& board_;
  NameIndex pinGeometries_;  // in CMGeom::m_pPins
  NameIndex padstacks_;      // in Board::padstacks
  std::vector<Footprint> footprints_;
  NameIndex byName_;
  std::vector<std::size_t> bySource_;  // in footprints_, for the index of a geometry
};

}  // namespace kestrin
