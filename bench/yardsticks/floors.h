#pragma once

/// @file
/// The yardsticks "newlines" and "fields": work that no reader of the whole text can avoid.

#include <cstdint>
#include <string_view>

namespace kestrin::bench {

/// Finds every line end of a text with memchr, and returns how many there are.
[[nodiscard]] std::uint64_t CountNewlines(std::string_view text);

/// Finds every field between blanks and commas, and converts those that begin like a number. Returns their
/// sum, so that the compiler cannot remove a conversion.
[[nodiscard]] double SumOfNumbers(std::string_view text);

}  // namespace kestrin::bench
