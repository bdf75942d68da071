#include "kestrin/base/numbers.h"

#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

#include "kestrin/base/characters.h"

namespace kestrin {
namespace {

struct Magnitude {
  std::string_view text;  // what follows white space and sign
  bool negative = false;
};

Magnitude SkipSign(std::string_view text) {
  if (text.starts_with('-')) return {text.substr(1), true};
  if (text.starts_with('+')) return {text.substr(1), false};
  return {text, false};
}

Magnitude SkipSpaceAndSign(std::string_view text) {
  while (!text.empty() && IsSpace(text.front())) text.remove_prefix(1);
  return SkipSign(text);
}

bool StartsDecimal(std::string_view text) {
  if (!text.empty() && text.front() == '.') text.remove_prefix(1);
  return !text.empty() && IsDigit(text.front());
}

/// Tells why a decimal number is out of the range of a double: true if it is too large, false if too small.
bool IsHuge(std::string_view digits) {
  constexpr std::int64_t kFarOut = 1'000'000'000'000'000;
  std::int64_t places = 0;  // the number is 0.d… times ten to this power, where d is its first nonzero digit
  bool started = false;
  bool fraction = false;
  std::size_t i = 0;
  for (; i < digits.size() && (IsDigit(digits[i]) || (digits[i] == '.' && !fraction)); ++i) {
    if (digits[i] == '.') {
      fraction = true;
      continue;
    }
    started = started || digits[i] != '0';
    if (started && !fraction) ++places;
    if (!started && fraction) --places;
  }
  if (i >= digits.size() || (digits[i] != 'e' && digits[i] != 'E')) return places > 0;
  const Magnitude exponent = SkipSign(digits.substr(i + 1));
  std::int64_t power = 0;
  for (const char c : exponent.text) {
    if (!IsDigit(c) || power > kFarOut) break;
    power = power * 10 + (c - '0');
  }
  return places + (exponent.negative ? -power : power) > 0;
}

}  // namespace

int ToInt(std::string_view text) {
  constexpr std::int64_t kLimit = std::numeric_limits<int>::max();
  const auto [digits, negative] = SkipSpaceAndSign(text);
  std::int64_t value = 0;
  for (const char c : digits) {
    if (!IsDigit(c)) break;
    value = value * 10 + (c - '0');
    if (value > kLimit) return negative ? std::numeric_limits<int>::min() : std::numeric_limits<int>::max();
  }
  return static_cast<int>(negative ? -value : value);
}

double ToDouble(std::string_view text) {
  double value = 0.0;
  if (ReadPlainNumber(text, value) > 0) return value;
  const auto [digits, negative] = SkipSpaceAndSign(text);
  if (!StartsDecimal(digits)) return 0.0;
  const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), value);
  if (result.ec == std::errc::result_out_of_range) {
    value = IsHuge(digits) ? std::numeric_limits<double>::infinity() : 0.0;
  }
  return negative ? -value : value;
}

int ToInt(double value) {
  if (value != value) return 0;
  if (value >= std::numeric_limits<int>::max()) return std::numeric_limits<int>::max();
  if (value <= std::numeric_limits<int>::min()) return std::numeric_limits<int>::min();
  return static_cast<int>(value);
}

}  // namespace kestrin
