#pragma once

/// @file
/// Attributes that are one number in square brackets.

#include <type_traits>

#include "kestrin/base/numbers.h"
#include "kestrin/geometry/bracket_scans.h"
#include "kestrin/text/line_outcome.h"

namespace kestrin::attribute {

inline constexpr RecordRule kBracketRule{"the attribute", "a number in square brackets"};

/// The number in the first value with "[" goes to the target; without one the line does nothing.
template <class NUMBER>
LineOutcome AssignBracketed(Values& values, NUMBER& target) {
  const auto text = FirstBracketed(values);
  if (!text) return LineOutcome::Skipped(SkipCode::kMissingValue, kBracketRule);
  if constexpr (std::is_integral_v<NUMBER>) {
    target = ToInt(*text);
  } else {
    target = ToDouble(*text);
  }
  return LineOutcome::Imported();
}

}  // namespace kestrin::attribute
