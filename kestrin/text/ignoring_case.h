#pragma once

/// @file
/// Comparing and searching text without regard to the case of ASCII letters.

#include <algorithm>
#include <string_view>

#include "kestrin/base/characters.h"

namespace kestrin {

[[nodiscard]] constexpr bool EqualIgnoringCase(char a, char b) { return ToUpper(a) == ToUpper(b); }

[[nodiscard]] constexpr bool EqualIgnoringCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char left, char right) { return EqualIgnoringCase(left, right); });
}

[[nodiscard]] constexpr bool ContainsIgnoringCase(std::string_view text, std::string_view part) {
  return std::search(text.begin(), text.end(), part.begin(), part.end(),
                     [](char left, char right) { return EqualIgnoringCase(left, right); }) != text.end();
}

}  // namespace kestrin
