#pragma once

/// @file
/// How many values a record takes.

#include <cstddef>
#include <cstdint>
#include <string>

namespace kestrin {

/// A demand on the number of values of a line, as tables of records state it: `AtLeast(5)`, `OneOf(4, 6, 8)`.
struct ValueCount {
  std::uint32_t fewest = 0;
  std::uint32_t exact =
      0;  ///< a bit for each number that will do; 0 where every number from the fewest on will

  [[nodiscard]] constexpr bool IsOpenEnded() const { return exact == 0; }
  [[nodiscard]] constexpr bool Accepts(std::size_t count) const {
    return IsOpenEnded() ? count >= fewest : count < 32 && (exact >> count & 1U) != 0;
  }
  /// Asks a line, which cuts no more of its values than the answer takes.
  template <class Line>
  [[nodiscard]] constexpr bool AcceptsValuesOf(Line& line) const {
    return IsOpenEnded() ? fewest == 0 || line.HasAtLeast(fewest) : Accepts(line.Count());
  }

  /// In words: "at least 5 values", "4, 6 or 8 values".
  [[nodiscard]] std::string Text() const;
};

///@{
/// The demands that there are. A number that is not open-ended is below 32.
[[nodiscard]] constexpr ValueCount Any() { return {}; }
[[nodiscard]] constexpr ValueCount AtLeast(std::uint32_t fewest) { return {fewest, 0}; }
template <class... Counts>
[[nodiscard]] constexpr ValueCount OneOf(Counts... counts) {
  return {0, ((1U << counts) | ...)};
}
[[nodiscard]] constexpr ValueCount Exactly(std::uint32_t count) { return OneOf(count); }
///@}

}  // namespace kestrin
