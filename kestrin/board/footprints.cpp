#include "kestrin/board/footprints.h"

#include <utility>

#include "kestrin/board/for_each_record.h"
#include "kestrin/geometry/geometry_model.h"

namespace kestrin {

Footprints::Footprints(const CMGeom* geometry, Board& board) : geometry_(geometry), board_(board) {
  if (geometry == nullptr) return;
  ForEachRecord(geometry->m_pPins, [&](const CMGeomPin& pin, Index index) {
    pinGeometries_.Add(ComparedName(pin.m_sName.View()), index);
  });
  ForEachRecord(geometry->m_pComponents, [&](const CMGeomComponent& component, Index index) {
    const Index place = ToIndex(footprints_.size());
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
  ForEachRecord(component.m_pPadstackOverrides, [&](const CMGeomOverride& record, Index) {
    overrides.emplace_back(ComparedReference(record.m_sArg1.View()), ComparedName(record.m_sArg2.View()));
  });
  NameIndex overridesByPin;
  for (Index i = 0; i < overrides.size(); ++i) overridesByPin.Add(overrides[i].first, i);

  std::string_view usual = ComparedName(component.m_sDefaultPadstack.View());
  if (usual.empty()) usual = ComparedName(geometry_->m_pBoard->m_sDefaultPadstack.View());
  ForEachRecord(component.m_pPinDefs, [&](const CMGeomPinDef& record, Index) {
    FootprintPin& pin = footprint.pins.emplace_back();
    pin.name = ComparedReference(record.m_sName.View());
    pin.position = {record.m_dX, record.m_dY};
    const auto found = overridesByPin.Find(pin.name);
    pin.padstack =
        PadstackNamed(found && !overrides[*found].second.empty() ? overrides[*found].second : usual);
  });
  const Index count = ToIndex(footprint.pins.size());
  std::vector<Index> last(count);  // the last pin so far of a name, at the index of its first pin
  for (Index i = 0; i < count; ++i) {
    const Index first = footprint.pinsByName.Add(footprint.pins[i].name, i);
    if (first != i) footprint.pins[last[first]].nextOfName = i;
    last[first] = i;
    footprint.pins[i].nextOfName = count;
  }
}

std::optional<Index> Footprints::PadstackNamed(std::string_view name) {
  if (name.empty()) return std::nullopt;
  const Index next = ToIndex(board_.padstacks.size());
  const Index index = padstacks_.Add(name, next);
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
