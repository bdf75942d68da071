#pragma once

/// @file
/// Shortening a view at its ends.

#include <string_view>

#include "kestrin/platform/characters.h"

namespace kestrin {

/// The text without white space at its start, its end, or both.
[[nodiscard]] constexpr std::string_view TrimmedLeft(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  return text;
}

[[nodiscard]] constexpr std::string_view TrimmedRight(std::string_view text) {
  while (!text.empty() && IsSpace(text.back())) text.remove_suffix(1);
  return text;
}

[[nodiscard]] constexpr std::string_view Trimmed(std::string_view text) {
  return TrimmedRight(TrimmedLeft(text));
}

}  // namespace kestrin
