#pragma once

/// @file
/// The commands that open a geometry and say what its unit is.

#include "kestrin/geometry/reader_state.h"

namespace kestrin {

LineOutcome LockWindows(ReaderState& state, std::string_view arguments);

/// Opens a geometry that takes its name from the arguments: all of them, but for the quotes at their ends.
template <void (CurrentGeometry::*CREATE)(std::string_view name)>
LineOutcome CreateNamed(ReaderState& state, std::string_view arguments) {
  (state.geometry.*CREATE)(Unquoted(arguments));
  return LineOutcome::Imported();
}

/// Opens a geometry that has no place in the model.
template <void (CurrentGeometry::*CREATE)()>
LineOutcome CreateUnkept(ReaderState& state, std::string_view /*arguments*/) {
  (state.geometry.*CREATE)();
  return LineOutcome::Ignored();
}

LineOutcome Page(ReaderState& state, std::string_view arguments);

}  // namespace kestrin
