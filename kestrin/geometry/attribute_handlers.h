#pragma once

/// @file
/// The handlers of attributes. Each fills the field that its row in attributes.cpp names. Value 1 of the line
/// is the attribute's name.

#include <string_view>

#include "kestrin/base/numbers.h"
#include "kestrin/geometry/bracket_scans.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/geometry/reader_state.h"
#include "kestrin/records/append.h"

namespace kestrin::attribute {

/// The value that SetIfYes looks for.
inline constexpr std::string_view kYes = "YES";

///@{
/// Reads value 2 and, for lists and records, the values after it.
LineOutcome SetText(ReaderState& state, CString& text);
LineOutcome SetIfYes(ReaderState& state, int& flag);
LineOutcome AddNames(ReaderState& state, CStringArray& names);
LineOutcome AddOverride(ReaderState& state, RecordArray<CMGeomOverride>& overrides);
LineOutcome AddLayerDefinition(ReaderState& state, RecordArray<CMGeomLayerDEF>& layers);
///@}

/// Sets a number that depends only on the attribute's name.
template <int Type>
LineOutcome SetType(ReaderState& /*state*/, int& type) {
  type = Type;
  return LineOutcome::Imported();
}

///@{
/// Reads a number in square brackets. Without one, the line is skipped.
LineOutcome SetNumber(ReaderState& state, double& number);
LineOutcome SetWholeNumber(ReaderState& state, int& number);
/// If there are pending points, their first value is used instead.
LineOutcome SetDrillSize(ReaderState& state, double& size);
///@}

///@{
/// Reads points.
LineOutcome AddPoints(ReaderState& state, NumberArray& points);
LineOutcome ReplacePoints(ReaderState& state, NumberArray& points);
LineOutcome AddPlacementRegion(ReaderState& state, RecordArray<CMGeomPlacementRegion>& regions);
LineOutcome AddPlacementKeepout(ReaderState& state, RecordArray<CMGeomKeepout>& keepouts);
LineOutcome AddKeepout(ReaderState& state, RecordArray<CMGeomKeepout>& keepouts);
LineOutcome AddDrill(ReaderState& state, RecordArray<CMGeomDrill>& drills);
LineOutcome AddPin(ReaderState& state, RecordArray<CMGeomPinDef>& pins);
///@}

/// Reads points. Each line makes a new outline of a component; all lines extend the one outline of a generic
/// part.
struct AddPlacementOutline {
  LineOutcome operator()(ReaderState& state, RecordArray<CMGeomPlacementOutline>& outlines) const;
  LineOutcome operator()(ReaderState& state, CMGeomPlacementOutline& outline) const;
};

}  // namespace kestrin::attribute
