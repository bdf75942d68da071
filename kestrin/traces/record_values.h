#pragma once

/// @file
/// The values of a record of a Traces file: the fields after its code, numbered from 1.

#include <cstddef>
#include <string_view>

#include "kestrin/text/line_fields.h"
#include "kestrin/text/trim.h"

namespace kestrin {

/// How many values a line has, which has a code.
[[nodiscard]] inline std::size_t CountValues(LineFields& line) { return line.Count() - 1; }

/// A value without the apostrophes at its ends.
[[nodiscard]] constexpr std::string_view WithoutApostrophes(std::string_view value) {
  return WithoutTrailing(WithoutLeading(value, '\''), '\'');
}

}  // namespace kestrin
