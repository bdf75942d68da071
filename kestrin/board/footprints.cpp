#include "kestrin/board/footprints.h"

#include <utility>

#include "kestrin/board/records.h"
#include "kestrin/geometry/geometry_model.h"

namespace kestrin {

Footprints::Footprints(const CMGeom* geometry, Board& board) : geometry_(geometry), board_(board) {
  if (geometry == nullptr) return;
  ForEachRecord(geometry->m_pPins, [&](const CMGeomPin& pin, std::size_t index) {
    pinGeometries_.Add(ComparedName(pin.m_sName.View()), index);
  });
  ForEachRecord(geometry->m_pComponents, [&](const CMGeomComponent& component, std::size_t index) {
    const std::size_t place = footprints_.size();
    bySource_.resize(index + 1, place);
    if (byName_.Add(ComparedName(component.m_sName.View()), place) != place) return;
    Footprint& footprint = footprints_.emplace_back();
    footprint.sourceIndex = index;
    footprint.unit = board.units.OfGeometry(component.m_sUnits.View());
    ReadPins(component, footprint);
  });
}

void Footprints::ReadPins(const CMGeomComponent& component, Footprint& footprint) {
  std::vector<std::pair<std::string, std::string_view>> overrides;
  ForEachRecord(component.m_pPadstackOverrides, [&](const CMGeomOverride& record, std::size_t) {
    overrides.emplace_back(ComparedReference(record.m_sArg1.View()), ComparedName(record.m_sArg2.View()));
  });
  NameIndex overridesByPin;
  for (std::size_t i = 0; i < overrides.size(); ++i) overridesByPin.Add(overrides[i].first, i);

  std::string_view usual = ComparedName(component.m_sDefaultPadstack.View());
  if (usual.empty()) usual = ComparedName(geometry_->m_pBoard->m_sDefaultPadstack.View());
  ForEachRecord(component.m_pPinDefs, [&](const CMGeomPinDef& record, std::size_t) {
    FootprintPin& pin = footprint.pins.emplace_back();
    pin.name = ComparedReference(record.m_sName.View());
    pin.position = {record.m_dX, record.m_dY};
    const auto found = overridesByPin.Find(pin.name);
    pin.padstack =
        PadstackNamed(found && !overrides[*found].second.empty() ? overrides[*found].second : usual);
  });
  const std::size_t count = footprint.pins.size();
  std::vector<std::size_t> last(count);  // the last pin so far of a name, at the index of its first pin
  for (std::size_t i = 0; i < count; ++i) {
    const std::size_t first = footprint.pinsByName.Add(footprint.pins[i].name, i);
    if (first != i) footprint.pins[last[first]].nextOfName = i;
    last[first] = i;
    footprint.pins[i].nextOfName = count;
  }
}

std::optional<std::size_t> Footprints::PadstackNamed(std::string_view name) {
  if (name.empty()) return std::nullopt;
  const std::size_t next = board_.padstacks.size();
  const std::size_t index = padstacks_.Add(name, next);
  if (index != next) return index;
  Padstack& padstack = board_.padstacks.emplace_back();
  padstack.name = name;
  padstack.unit = board_.units.geometry;
  padstack.sourceIndex = pinGeometries_.Find(name);
  if (padstack.sourceIndex) {
    const auto source = static_cast<std::int64_t>(*padstack.sourceIndex);
    padstack.unit = board_.units.OfGeometry(geometry_->m_pPins->GetAt(source)->m_sUnits.View());
  }
  return index;
}

}  // namespace kestrin
