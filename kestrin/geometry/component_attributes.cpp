#include <memory>
#include <utility>

#include "kestrin/geometry/attribute_handlers.h"
#include "kestrin/geometry/bracketed_number.h"
#include "kestrin/records/append.h"
#include "kestrin/text/ignoring_case.h"

namespace kestrin::attribute {
namespace {

/// The open one, if a component is open.
CMGeomComponent& Component(ReaderState& state) { return *state.geometry.LastComponent(); }

}  // namespace

LineOutcome DefaultPadstackOfComponent(ReaderState& state) {
  Component(state).m_sDefaultPadstack = state.values[2];
  return LineOutcome::Imported();
}

LineOutcome LayoutSurface(ReaderState& state) {
  Component(state).m_sLayoutSurface = state.values[2];
  return LineOutcome::Imported();
}

LineOutcome LayoutType(ReaderState& state) {
  Component(state).m_sLayoutType = state.values[2];
  return LineOutcome::Imported();
}

LineOutcome OutlineOverhang(ReaderState& state) {
  Component(state).m_bOutlineOverhang = ContainsIgnoringCase(state.values[2], "YES") ? 1 : 0;
  return LineOutcome::Imported();
}

LineOutcome Height(ReaderState& state) { return AssignBracketed(state.values, Component(state).m_dHeight); }

LineOutcome ComponentType(ReaderState& state) {
  Component(state).m_sComponentType = state.values[2];
  return LineOutcome::Imported();
}

LineOutcome PadstackOverride(ReaderState& state) {
  auto padstackOverride = state.records.Make<CMGeomOverride>();
  padstackOverride->m_sArg1 = state.values[2];
  padstackOverride->m_sArg2 = state.values[3];
  Append(*Component(state).m_pPadstackOverrides, std::move(padstackOverride));
  return LineOutcome::Imported();
}

LineOutcome PinDefinition(ReaderState& state) {
  auto pin = state.records.Make<CMGeomPinDef>();
  pin->m_sName = state.values[2];
  const BracketedPoint point = state.TakePoint(3);
  pin->m_dX = point.x;
  pin->m_dY = point.y;
  Append(*Component(state).m_pPinDefs, std::move(pin));
  return LineOutcome::Imported();
}

}  // namespace kestrin::attribute
