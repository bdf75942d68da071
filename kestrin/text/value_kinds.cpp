#include "kestrin/text/value_kinds.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "kestrin/base/characters.h"
#include "kestrin/base/numbers.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

bool IsWhollyDecimal(std::string_view magnitude) {
  const std::string_view digits = magnitude.substr(magnitude.starts_with('.') ? 1 : 0);
  if (digits.empty() || !IsDigit(digits.front())) return false;
  double number = 0.0;
  const char* const end = magnitude.data() + magnitude.size();
  return std::from_chars(magnitude.data(), end, number).ptr == end;
}

}  // namespace

bool IsWhollyNumber(std::string_view text, NumberKind kind) {
  const std::string_view number = Trimmed(text);
  const std::string_view magnitude =
      number.substr(number.starts_with('-') || number.starts_with('+') ? 1 : 0);
  if (!magnitude.empty() && std::all_of(magnitude.begin(), magnitude.end(), IsDigit)) return true;
  if (!IsWhollyDecimal(magnitude)) return false;
  const double value = ToDouble(number);
  switch (kind) {
    case NumberKind::kDecimal: return true;
    case NumberKind::kWhole: return value == ToInt(number);
    case NumberKind::kTruncated: break;
  }
  return value == std::trunc(value);
}

}  // namespace kestrin
