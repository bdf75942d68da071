// Attributes with points. They consume the pending points.

#include <memory>
#include <utility>

#include "kestrin/geometry/append_numbers.h"
#include "kestrin/geometry/attribute_handlers.h"

namespace kestrin::attribute {
namespace {

LineOutcome AddNamedArea(ReaderState& state, const BracketScan& scan, RecordArray<CMGeomKeepout>& keepouts) {
  auto keepout = state.records.Make<CMGeomKeepout>();
  keepout->m_sName = state.values[2];
  Append(*keepout->m_pCoords, state.TakePoints(3, scan));
  Append(keepouts, std::move(keepout));
  return LineOutcome::Imported();
}

}  // namespace

LineOutcome AddPoints(ReaderState& state, NumberArray& points) {
  Append(points, state.TakePoints(2, kOutlineScan));
  state.records.NoteLineOf(&points);
  return LineOutcome::Imported();
}

LineOutcome ReplacePoints(ReaderState& state, NumberArray& points) {
  points.RemoveAll();
  return AddPoints(state, points);
}

LineOutcome AddPlacementRegion(ReaderState& state, RecordArray<CMGeomPlacementRegion>& regions) {
  auto region = state.records.Make<CMGeomPlacementRegion>();
  Append(*region->m_pCoords, state.TakePoints(2, kOutlineScan));
  Append(regions, std::move(region));
  return LineOutcome::Imported();
}

LineOutcome AddPlacementKeepout(ReaderState& state, RecordArray<CMGeomKeepout>& keepouts) {
  return AddNamedArea(state, kOutlineScan, keepouts);
}

LineOutcome AddKeepout(ReaderState& state, RecordArray<CMGeomKeepout>& keepouts) {
  return AddNamedArea(state, kKeepoutScan, keepouts);
}

LineOutcome AddDrill(ReaderState& state, RecordArray<CMGeomDrill>& drills) {
  auto drill = state.records.Make<CMGeomDrill>();
  drill->m_dSize = ToDouble(state.values[2]);
  const BracketedPoint point = state.TakePoint(3);
  drill->m_dX = point.x;
  drill->m_dY = point.y;
  Append(drills, std::move(drill));
  return LineOutcome::Imported();
}

LineOutcome AddPin(ReaderState& state, RecordArray<CMGeomPinDef>& pins) {
  auto pin = state.records.Make<CMGeomPinDef>();
  pin->m_sName = state.values[2];
  const BracketedPoint point = state.TakePoint(3);
  pin->m_dX = point.x;
  pin->m_dY = point.y;
  Append(pins, std::move(pin));
  return LineOutcome::Imported();
}

LineOutcome AddPlacementOutline::operator()(ReaderState& state,
                                            RecordArray<CMGeomPlacementOutline>& outlines) const {
  auto outline = state.records.Make<CMGeomPlacementOutline>();
  outline->m_sName = state.values[2];
  Append(*outline->m_pCoords, state.TakePoints(3, kPlacementOutlineScan));
  Append(outlines, std::move(outline));
  return LineOutcome::Imported();
}

LineOutcome AddPlacementOutline::operator()(ReaderState& state, CMGeomPlacementOutline& outline) const {
  Append(*outline.m_pCoords, state.TakePoints(3, kPlacementOutlineScan));
  state.records.NoteLineOf(&outline);
  return LineOutcome::Imported();
}

}  // namespace kestrin::attribute
