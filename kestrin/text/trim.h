#pragma once

/// @file
/// Removing characters at the ends of a view.

#include <string_view>

#include "kestrin/base/characters.h"

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

/// The text without any leading occurrences of a character.
[[nodiscard]] constexpr std::string_view WithoutLeading(std::string_view text, char c) {
  while (!text.empty() && text.front() == c) text.remove_prefix(1);
  return text;
}

/// The text without any trailing occurrences of a character.
[[nodiscard]] constexpr std::string_view WithoutTrailing(std::string_view text, char c) {
  while (!text.empty() && text.back() == c) text.remove_suffix(1);
  return text;
}

/// The text without any double quotes at either end.
[[nodiscard]] constexpr std::string_view Unquoted(std::string_view text) {
  return WithoutTrailing(WithoutLeading(text, '"'), '"');
}

/// The text without white space and then without double quotes at either end. White space inside the quotes
/// stays.
[[nodiscard]] constexpr std::string_view Cleaned(std::string_view text) { return Unquoted(Trimmed(text)); }

}  // namespace kestrin
