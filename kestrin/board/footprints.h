#pragma once

/// @file
/// The pins of component geometries, read once for all components with the same geometry.

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
  std::optional<Index> padstack;
  Index nextOfName = 0;  // the next pin of the geometry with this name; pins.size() for the last
};

/// A component geometry.
struct Footprint {
  Index sourceIndex = 0;
  double unit = 1.0;
  std::vector<FootprintPin> pins;
  NameIndex pinsByName;
};

/// The component geometries.
class Footprints {
 public:
  /// Adds the padstacks that pins name to the board. The geometry may be null.
  Footprints(const CMGeom* geometry, Board& board);

  /// The geometry of a name; null if there is none.
  [[nodiscard]] const Footprint* Find(std::string_view name) const {
    const auto found = byName_.Find(name);
    return found ? &footprints_[*found] : nullptr;
  }
  /// The geometry of a component, which must have one.
  [[nodiscard]] const Footprint& Of(const Component& component) const {
    return footprints_[bySource_[*component.geometryIndex]];
  }

 private:
  void ReadPins(const CMGeomComponent& component, Footprint& footprint);
  [[nodiscard]] std::optional<Index> PadstackNamed(std::string_view name);

  const CMGeom* geometry_;
  Board& board_;
  NameIndex pinGeometries_;  // in CMGeom::m_pPins
  NameIndex padstacks_;      // in Board::padstacks
  std::vector<Footprint> footprints_;
  NameIndex byName_;
  std::vector<Index> bySource_;  // in footprints_, by index in CMGeom::m_pComponents
};

}  // namespace kestrin
