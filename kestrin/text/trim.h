#pragma once

/// @file
/// Shortening a view at its ends.

#include <string_view>

#include "kestrin/platform/characters.h"

namespace kestrin {

/// The text without white space at either end.
[[nodiscard]] constexpr std::string_view Trimmed(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace kestrin
