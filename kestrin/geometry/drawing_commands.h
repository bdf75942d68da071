#pragma once

/// @file
/// The commands that gather points, and those that add drawing objects, texts and adds. Their values are
/// numbered from 1. Where a number is read from the raw value, one in quotes is 0.

#include "kestrin/geometry/reader_state.h"

namespace kestrin {

LineOutcome BeginPoints(ReaderState& state);
LineOutcome ContinuePoints(ReaderState& state);
LineOutcome SetPathWidth(ReaderState& state);

///@{
/// Every drawing object consumes the pending points, whether it needs them or not.
LineOutcome AddPath(ReaderState& state, CMGeomDrawObjArray& objects);
LineOutcome AddArc(ReaderState& state, CMGeomDrawObjArray& objects);
LineOutcome AddPolygon(ReaderState& state, CMGeomDrawObjArray& objects);
LineOutcome AddCircle(ReaderState& state, CMGeomDrawObjArray& objects);
///@}

LineOutcome AddText(ReaderState& state, RecordArray<CMGeomText>& texts);
LineOutcome PlaceGeometry(ReaderState& state, RecordArray<CMGeomAdd>& adds);

}  // namespace kestrin
