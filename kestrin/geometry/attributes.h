#pragma once

/// @file
/// The command `$$attribute("NAME", value, …);`, which attaches a property to a geometry.

#include "kestrin/geometry/reader_state.h"

namespace kestrin {

/// Value 1, the name, is cut where commas outside double quotes separate.
LineOutcome ReadAttribute(ReaderState& state);

}  // namespace kestrin
