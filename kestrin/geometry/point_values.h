#pragma once

/// @file
/// The values that lists of points are made of: `[x1, y1, x2, y2]` is cut into `[x1`, ` y1`, ` x2`, ` y2]`.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string_view>

#include "kestrin/base/numbers.h"
#include "kestrin/geometry/values.h"

namespace kestrin {

/// What a value does to the list.
enum class Bracket : std::uint8_t {
  kNone,
  kOpening,  ///< there is a "["
  kClosing,  ///< there is a "]" and no "["
};

/// A value, cleaned and converted.
struct PointValue {
  double number = 0.0;
  bool isEmpty = false;  ///< nothing but the bracket is left of its text; the number is then 0
  Bracket bracket = Bracket::kNone;
};

/// Reads what nearly every value is: blanks, a bracket or none, and a number of the usual form. Gives the
/// value at the beginning of what is left to cut and returns its length with the commas before it; 0 for
/// anything else.
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

/// The next value whatever it is, or nothing at the end.
[[nodiscard]] std::optional<PointValue> NextAnyPointValue(ValueCut& cut);

/// The same, in one step where the value is plain.
[[nodiscard]] inline std::optional<PointValue> NextPointValue(ValueCut& cut) {
  PointValue value;
  const std::size_t length = ReadPlainValue(cut.Rest(), value);
  if (length == 0) return NextAnyPointValue(cut);
  cut.Skip(length);
  return value;
}

}  // namespace kestrin
