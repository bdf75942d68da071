#pragma once

/// @file
/// Classes and case of single bytes, for ASCII and whatever the locale.

namespace kestrin {

/// White space as the C runtime and the framework's trims know it.
[[nodiscard]] constexpr bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

[[nodiscard]] constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

[[nodiscard]] constexpr char ToUpper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

[[nodiscard]] constexpr char ToLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace kestrin
