#pragma once

/// @file
/// The commands that open a geometry and say what its unit is.

#include "kestrin/geometry/reader_state.h"
#include "kestrin/text/trim.h"

namespace kestrin {

LineOutcome BindBoard(ReaderState& state);

/// Opens a geometry that takes its name from the arguments: all of them, but for the quotes at their ends.
template <void (CurrentGeometry::*Create)(std::string_view name)>
LineOutcome CreateNamed(ReaderState& state) {
  (state.geometry.*Create)(Unquoted(state.arguments));
  return LineOutcome::Imported();
}

/// Opens a geometry that has no place in the model.
LineOutcome CreateUnkept(ReaderState& state);

LineOutcome SetUnit(ReaderState& state, CString& unit);

}  // namespace kestrin
