#pragma once

/// @file
/// Lines that are there for people only.

#include <string_view>

#include "kestrin/text/trim.h"

namespace kestrin {

/// Whether a line holds nothing but white space, or a comment: "#" first.
[[nodiscard]] constexpr bool IsBlankOrComment(std::string_view line) {
  const std::string_view text = Trimmed(line);
  return text.empty() || text.front() == '#';
}

}  // namespace kestrin
