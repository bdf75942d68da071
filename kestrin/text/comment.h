#pragma once

/// @file
/// Blank lines and comments.

#include <string_view>

#include "kestrin/text/trim.h"

namespace kestrin {

/// Whether the line is blank or a comment. A comment begins with "#", which white space may precede.
[[nodiscard]] constexpr bool IsBlankOrComment(std::string_view line) {
  const std::string_view text = Trimmed(line);
  return text.empty() || text.front() == '#';
}

}  // namespace kestrin
