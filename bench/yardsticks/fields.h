#pragma once

/// @file
/// The yardstick "fields": what it costs to look at every byte, to find every field and to convert every
/// number, without knowing what it means and without keeping it.

#include <charconv>
#include <string_view>

namespace kestrin::bench {

/// Fields stand between blanks and commas, and at most to the end of their line.
[[nodiscard]] constexpr bool EndsField(char c) { return c == ' ' || c == ',' || c == '\n'; }

[[nodiscard]] constexpr bool BeginsNumber(char c) {
  return (c >= '0' && c <= '9') || c == '-' || c == '+' || c == '.';
}

/// Converts every field of a text that begins like a number and returns their sum, so that no conversion can
/// be left out.
[[nodiscard]] inline double SumOfNumbers(std::string_view text) {
  double sum = 0.0;
  const char* position = text.data();
  const char* const end = position + text.size();
  while (position != end) {
    if (EndsField(*position)) {
      ++position;
      continue;
    }
    const char* field = position;
    while (position != end && !EndsField(*position)) ++position;
    if (!BeginsNumber(*field)) continue;
    if (*field == '+') ++field;  // which from_chars does not take
    double number = 0.0;
    std::from_chars(field, position, number);
    sum += number;
  }
  return sum;
}

}  // namespace kestrin::bench
