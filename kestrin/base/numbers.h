#pragma once

/// @file
/// Converts text to numbers like atoi and atof of the C library, but independent of the locale and for
/// decimal numbers only: " 12.5mm" is 12.5, "mm" is 0, and so are "0x10", "inf" and "nan". Leading white
/// space is skipped; then the longest prefix that is a number counts.

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

#include "kestrin/base/characters.h"

namespace kestrin {

/// Reads a number at the beginning of the text in one pass and returns its length. Reads only the form that
/// nearly all numbers of a file have: an optional sign, digits with an optional point, no exponent, and few
/// enough digits to be exact in a double. The number is the one that ToDouble returns. Returns 0 for any
/// other form, even if ToDouble reads it.
[[nodiscard]] inline std::size_t ReadPlainNumber(std::string_view text, double& number);

/// The length of the digits at the beginning of the text, with a minus before them and, if it may have one, a
/// point after the first; 0 if there are none.
[[nodiscard]] inline std::size_t LengthOfDigits(std::string_view text, bool mayHavePoint) {
  std::size_t place = text.starts_with('-') ? 1 : 0;
  const std::size_t first = place;
  while (place < text.size() && IsDigit(text[place])) ++place;
  if (place == first) return 0;
  if (mayHavePoint && place < text.size() && text[place] == '.') ++place;
  while (place < text.size() && IsDigit(text[place])) ++place;
  return place;
}

/// The integer at the beginning of the text. A value out of range becomes the nearest limit of an int.
[[nodiscard]] int ToInt(std::string_view text);

/// The number at the beginning of the text, correctly rounded. A value too large for a double becomes
/// positive or negative infinity; one too small becomes the nearest denormal or zero.
[[nodiscard]] double ToDouble(std::string_view text);

/// The value truncated toward zero. A value out of range becomes the nearest limit of an int; not-a-number
/// becomes 0.
[[nodiscard]] int ToInt(double value);

std::size_t ReadPlainNumber(std::string_view text, double& number) {
  constexpr std::uint64_t kExact = std::uint64_t{1} << 53;
  constexpr std::size_t kMostDigits = 19;  // cannot overflow 64 bits
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
  // Both operands are exact, so the quotient is the double nearest to the number.
  const double magnitude = static_cast<double>(static_cast<std::int64_t>(digits)) / kPowersOfTen[decimals];
  number = magnitude * kSigns[static_cast<std::size_t>(negative)];
  return static_cast<std::size_t>(place - text.data());
}

}  // namespace kestrin
