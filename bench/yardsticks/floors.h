#pragma once

/// @file
/// The yardsticks "newlines" and "fields": what no reader of the whole text can do without.

#include <cstdint>
#include <string_view>

namespace kestrin::bench {

/// Finds the lines of a text, with one memchr for each, and returns how many there are.
[[nodiscard]] std::uint64_t CountNewlines(std::string_view text);

/// Looks at every byte, finds every field between blanks and commas, and converts those that begin like a
/// number. Nothing is kept but their sum, which is returned so that no conversion can be left out.
[[nodiscard]] double SumOfNumbers(std::string_view text);

}  // namespace kestrin::bench
