#pragma once

/// @file
/// Whether a text contains another.

#include <string_view>

namespace kestrin {

[[nodiscard]] constexpr bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

[[nodiscard]] constexpr bool Contains(std::string_view text, char c) {
  return text.find(c) != std::string_view::npos;
}

}  // namespace kestrin
