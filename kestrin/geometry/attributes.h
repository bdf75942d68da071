#pragma once

/// @file
/// The command `$$attribute("NAME", value, …);`, which sets a property of a geometry.

#include "kestrin/geometry/reader_state.h"

namespace kestrin {

/// Reads the attribute. Value 1, its name, must have been cut at commas outside double quotes.
LineOutcome ReadAttribute(ReaderState& state);

}  // namespace kestrin
