#pragma once

/// @file
/// The values of lists of points: `[x1, y1, x2, y2]` has the values `[x1`, ` y1`, ` x2` and ` y2]`.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "kestrin/base/numbers.h"
#include "kestrin/geometry/values.h"

namespace kestrin {

/// The bracket in a value.
enum class Bracket : std::uint8_t {
  kNone,
  kOpening,  ///< "[", with or without "]"
  kClosing,  ///< "]" only
};

/// A value, cleaned and converted.
struct PointValue {
  double number = 0.0;
  bool isEmpty = false;  ///< the cleaned text has nothing but brackets, and the number is 0
  Bracket bracket = Bracket::kNone;
};

/// Reads a plain value, as nearly all are: blanks and a number, perhaps with brackets. The value must be at
/// the start of the text, except that commas may precede it. Returns the length of commas and value, or 0 if
/// the value is not plain.
[[nodiscard]] inline std::size_t ReadPlainValue(std::string_view text, PointValue& value) {
  const char* const end = text.data() + text.size();
  const char* place = text.data();
  while (place != end && *place == ',') ++place;
  while (place != end && *place == ' ') ++place;
  const bool opens = place != end && *place == '[';
  place += opens;
  const std::size_t length = ReadPlainNumber({place, static_cast<std::size_t>(end - place)}, value.number);
  if (length == 0) return 0;
  place += length;
  const bool closes = place != end && *place == ']';
  place += closes;
  if (place != end && *place != ',') return 0;
  value.bracket = opens ? Bracket::kOpening : closes ? Bracket::kClosing : Bracket::kNone;
  return static_cast<std::size_t>(place - text.data());
}

/// The text of a value, cleaned and without its brackets.
struct PointText {
  std::string_view text;
  Bracket bracket = Bracket::kNone;
};
[[nodiscard]] PointText PointTextOf(std::string_view rawValue);

/// The next value of any form, or nothing at the end.
[[nodiscard]] std::optional<PointValue> NextAnyPointValue(ValueCut& cut);

/// The same, but faster if the value is plain.
[[nodiscard]] inline std::optional<PointValue> NextPointValue(ValueCut& cut) {
  PointValue value;
  const std::size_t length = ReadPlainValue(cut.Rest(), value);
  if (length == 0) return NextAnyPointValue(cut);
  cut.Skip(length);
  return value;
}

}  // namespace kestrin
