#include <memory>
#include <utility>

#include "kestrin/geometry/append_numbers.h"
#include "kestrin/geometry/attribute_handlers.h"
#include "kestrin/geometry/bracketed_number.h"
#include "kestrin/records/append.h"

namespace kestrin::attribute {
namespace {

CMGeomBoard& Board(ReaderState& state) { return *state.geometry.BoundBoard(); }

bool BoardIsOpen(const ReaderState& state) { return state.geometry.Kind() == GeometryKind::kBoard; }

}  // namespace

LineOutcome DefaultPadstackOfBoard(ReaderState& state) {
  Board(state).m_sDefaultPadstack = state.values[2];
  return LineOutcome::Imported();
}

LineOutcome DefaultVia(ReaderState& state) {
  Board(state).m_sDefaultVia = state.values[2];
  return LineOutcome::Imported();
}

LineOutcome PlacementClearance(ReaderState& state) {
  return AssignBracketed(state.values, Board(state).m_dPlacementClearance);
}

LineOutcome RoutingLayers(ReaderState& state) {
  return AssignBracketed(state.values, Board(state).m_nRoutingLayers);
}

LineOutcome PlacementOutlineOfBoard(ReaderState& state) {
  Append(*Board(state).m_pPlacementOutline, state.TakePoints(2, kOutlineScan));
  return LineOutcome::Imported();
}

LineOutcome RoutingOutline(ReaderState& state) {
  Board(state).m_pRoutingOutline->RemoveAll();  // the last outline counts, where those for placement add up
  Append(*Board(state).m_pRoutingOutline, state.TakePoints(2, kOutlineScan));
  return LineOutcome::Imported();
}

LineOutcome PlacementKeepout(ReaderState& state) {
  const auto& points = state.TakePoints(3, kOutlineScan);
  if (!BoardIsOpen(state)) return LineOutcome::Imported();
  auto keepout = state.records.Make<CMGeomKeepout>();
  keepout->m_sName = state.values[2];
  Append(*keepout->m_pCoords, points);
  Append(*Board(state).m_pPlacementKeepouts, std::move(keepout));
  return LineOutcome::Imported();
}

LineOutcome PlacementRegion(ReaderState& state) {
  const auto& points = state.TakePoints(2, kOutlineScan);
  if (!BoardIsOpen(state)) return LineOutcome::Imported();
  auto region = state.records.Make<CMGeomPlacementRegion>();
  Append(*region->m_pCoords, points);
  Append(*Board(state).m_pPlacementRegions, std::move(region));
  return LineOutcome::Imported();
}

LineOutcome PowerNetNames(ReaderState& state) {
  CStringArray& names = *Board(state).m_pPowerNetNames;
  for (std::size_t number = 2; state.values.HasAtLeast(number); ++number) {
    names[names.Add(state.values[number])].Remove('\'');
  }
  return LineOutcome::Imported();
}

}  // namespace kestrin::attribute
