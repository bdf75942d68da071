#pragma once

/// @file
/// The values of a line of a Traces file: the fields after its code, numbered from 1.

#include <cstddef>
#include <string_view>

#include "kestrin/text/line_fields.h"
#include "kestrin/text/trim.h"

namespace kestrin {

/// The number of values of a line, which must have a code.
[[nodiscard]] inline std::size_t CountValues(LineFields& line) { return line.Count() - 1; }

/// A value without the apostrophes at either end.
[[nodiscard]] constexpr std::string_view WithoutApostrophes(std::string_view value) {
  return WithoutTrailing(WithoutLeading(value, '\''), '\'');
}

}  // namespace kestrin
