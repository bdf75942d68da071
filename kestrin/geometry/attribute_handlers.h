#pragma once

/// @file
/// What attributes do with their values: each handler fills the member that its row in attributes.cpp names.
/// Value 1 is the attribute's name.

#include "kestrin/base/numbers.h"
#include "kestrin/geometry/bracket_scans.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/geometry/reader_state.h"
#include "kestrin/records/append.h"

namespace kestrin::attribute {

///@{
/// From value 2.
LineOutcome SetText(ReaderState& state, CString& text);
LineOutcome SetIfYes(ReaderState& state, int& flag);
LineOutcome AddNames(ReaderState& state, CStringArray& names);
LineOutcome AddOverride(ReaderState& state, RecordArray<CMGeomOverride>& overrides);
LineOutcome AddLayerDefinition(ReaderState& state, RecordArray<CMGeomLayerDEF>& layers);
///@}

/// From the name alone.
template <int Type>
LineOutcome SetType(ReaderState& /*state*/, int& type) {
  type = Type;
  return LineOutcome::Imported();
}

///@{
/// From a number in square brackets, without which the line does nothing.
LineOutcome SetNumber(ReaderState& state, double& number);
LineOutcome SetWholeNumber(ReaderState& state, int& number);
/// The first pending point overrules the number.
LineOutcome SetDrillSize(ReaderState& state, double& size);
///@}

///@{
/// From points.
LineOutcome AddPoints(ReaderState& state, NumberArray& points);
LineOutcome ReplacePoints(ReaderState& state, NumberArray& points);
LineOutcome AddPlacementRegion(ReaderState& state, RecordArray<CMGeomPlacementRegion>& regions);
LineOutcome AddPlacementKeepout(ReaderState& state, RecordArray<CMGeomKeepout>& keepouts);
LineOutcome AddKeepout(ReaderState& state, RecordArray<CMGeomKeepout>& keepouts);
LineOutcome AddDrill(ReaderState& state, RecordArray<CMGeomDrill>& drills);
LineOutcome AddPin(ReaderState& state, RecordArray<CMGeomPinDef>& pins);
///@}

/// From points too. A component has an outline for every line, a generic part one for all.
struct AddPlacementOutline {
  LineOutcome operator()(ReaderState& state, RecordArray<CMGeomPlacementOutline>& outlines) const;
  LineOutcome operator()(ReaderState& state, CMGeomPlacementOutline& outline) const;
};

}  // namespace kestrin::attribute
