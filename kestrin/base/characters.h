#pragma once

/// @file
/// Character classes and case conversion of single bytes: ASCII only, independent of the locale.

namespace kestrin {

/// Whether a byte is white space: a space, \t, \n, \v, \f or \r.
[[nodiscard]] constexpr bool IsSpace(char c) { return c == ' ' || (c >= '\t' && c <= '\r'); }

[[nodiscard]] constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

[[nodiscard]] constexpr char ToUpper(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

[[nodiscard]] constexpr char ToLower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
}

}  // namespace kestrin
