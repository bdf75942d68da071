#pragma once

/// @file
/// The commands that collect points, and those that add drawing objects, texts and adds. Values are numbered
/// from 1. A number that is read from the raw value is 0 if it is in quotes.

#include "kestrin/geometry/reader_state.h"

namespace kestrin {

LineOutcome BeginPoints(ReaderState& state);
LineOutcome ContinuePoints(ReaderState& state);
LineOutcome SetPathWidth(ReaderState& state);

///@{
/// Adds a drawing object. Consumes the pending points even if the object does not use them.
LineOutcome AddPath(ReaderState& state, CMGeomDrawObjArray& objects);
LineOutcome AddArc(ReaderState& state, CMGeomDrawObjArray& objects);
LineOutcome AddPolygon(ReaderState& state, CMGeomDrawObjArray& objects);
LineOutcome AddCircle(ReaderState& state, CMGeomDrawObjArray& objects);
///@}

LineOutcome AddText(ReaderState& state, RecordArray<CMGeomText>& texts);
LineOutcome PlaceGeometry(ReaderState& state, RecordArray<CMGeomAdd>& adds);

}  // namespace kestrin
