#pragma once

/// @file
/// The commands that fill the open geometry with points, drawing objects, texts and adds. Their values are
/// numbered from 1. Where a number is read from the raw value, one in quotes is 0.

#include "kestrin/geometry/reader_state.h"

namespace kestrin {

LineOutcome Initial(ReaderState& state, std::string_view arguments);
LineOutcome Terminal(ReaderState& state, std::string_view arguments);
LineOutcome TemplatePathWidth(ReaderState& state, std::string_view arguments);
LineOutcome Path(ReaderState& state, std::string_view arguments);
LineOutcome Arc(ReaderState& state, std::string_view arguments);
LineOutcome Polygon(ReaderState& state, std::string_view arguments);
LineOutcome Circle(ReaderState& state, std::string_view arguments);
LineOutcome Text(ReaderState& state, std::string_view arguments);
LineOutcome Add(ReaderState& state, std::string_view arguments);

}  // namespace kestrin
