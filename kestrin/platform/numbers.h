#pragma once

/// @file
/// Text to number with the rules of the C runtime's atoi and atof, whatever the locale: leading white space
/// is skipped, then the longest decimal prefix counts, and text without one is 0. "0x10", "inf" and "nan" are
/// 0.

#include <string_view>

namespace kestrin {

/// The integer that the text starts with; one out of range becomes the nearest 32-bit limit.
[[nodiscard]] int ToInt(std::string_view text);

/// The number that the text starts with; one too large becomes plus or minus infinity, one too small the
/// nearest denormal or zero.
[[nodiscard]] double ToDouble(std::string_view text);

/// The value truncated toward zero; out of range it becomes the nearest 32-bit limit, not-a-number 0.
[[nodiscard]] int ToInt(double value);

}  // namespace kestrin
