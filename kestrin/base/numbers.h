#pragma once

/// @file
/// Text to number with the rules of the C runtime's atoi and atof, whatever the locale: leading white space
/// is skipped, then the longest decimal prefix counts, and text without one is 0. "0x10", "inf" and "nan" are
/// 0.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kestrin/base/characters.h"

namespace kestrin {

/// Reads what nearly every number of a file is: a sign, digits and a point between them, as far as there are
/// any, and no more digits than a double holds exactly. Gives the number at the beginning of the text, the
/// same that ToDouble gives, and returns its length; 0 for anything else.
[[nodiscard]] inline std::size_t ReadPlainNumber(std::string_view text, double& number);

/// The integer that the text starts with; one out of range becomes the nearest 32-bit limit.
[[nodiscard]] int ToInt(std::string_view text);

/// The number that the text starts with; one too large becomes plus or minus infinity, one too small the
/// nearest denormal or zero.
[[nodiscard]] double ToDouble(std::string_view text);

/// The value truncated toward zero; out of range it becomes the nearest 32-bit limit, not-a-number 0.
[[nodiscard]] int ToInt(double value);

std::size_t ReadPlainNumber(std::string_view text, double& number) {
  constexpr std::uint64_t kExact = std::uint64_t{1} << 53;
  constexpr std::size_t kMostDigits = 19;  // of which no number overflows 64 bits
  static constexpr std::array kPowersOfTen{1e0,  1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,
                                           1e10, 1e11, 1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19};
  static constexpr std::array kSigns{1.0, -1.0};
  const char* const end = text.data() + text.size();
  const char* place = text.data();
  if (place == end) return 0;
  const bool negative = *place == '-';
  place += static_cast<int>(negative) | static_cast<int>(*place == '+');
  std::uint64_t digits = 0;
  const auto readDigits = [&] {
    const char* const first = place;
    for (; place != end && IsDigit(*place); ++place)
      digits = digits * 10 + static_cast<unsigned char>(*place - '0');
    return static_cast<std::size_t>(place - first);
  };
  std::size_t count = readDigits();
  std::size_t decimals = 0;
  if (place != end && *place == '.') {
    ++place;
    decimals = readDigits();
    count += decimals;
  }
  if (count == 0 || count > kMostDigits || digits > kExact) return 0;
  if (place != end && (*place == 'e' || *place == 'E')) return 0;
  // Both are exact, so that their quotient is the double that is nearest to the number.
  const double magnitude = static_cast<double>(static_cast<std::int64_t>(digits)) / kPowersOfTen[decimals];
  number = magnitude * kSigns[static_cast<std::size_t>(negative)];
  return static_cast<std::size_t>(place - text.data());
}

}  // namespace kestrin
