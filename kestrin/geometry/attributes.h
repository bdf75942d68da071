#pragma once

/// @file
/// The command `$$attribute("NAME", value, …);`, which attaches a property to a geometry.

#include "kestrin/geometry/reader_state.h"

namespace kestrin::attribute {

LineOutcome Read(ReaderState& state, std::string_view arguments);

}  // namespace kestrin::attribute
