#pragma once

/// @file
/// The commands that open a geometry and set its unit.

#include "kestrin/geometry/reader_state.h"
#include "kestrin/text/trim.h"

namespace kestrin {

LineOutcome BindBoard(ReaderState& state);

/// Opens a geometry. Its name is the whole text of the arguments without the quotes at either end.
template <void (CurrentGeometry::*Create)(std::string_view name)>
LineOutcome CreateNamed(ReaderState& state) {
  (state.geometry.*Create)(Unquoted(state.arguments));
  return LineOutcome::Imported();
}

/// Opens a geometry that is not in the model.
LineOutcome CreateIgnored(ReaderState& state);

LineOutcome SetUnit(ReaderState& state, CString& unit);

}  // namespace kestrin
