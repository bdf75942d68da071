#pragma once

/// @file
/// The number of values that a record takes.

#include <cstddef>
#include <cstdint>
#include <string>

namespace kestrin {

/// The numbers of values that are right for a record: `AtLeast(5)`, `OneOf(4, 6, 8)`.
struct ValueCount {
  std::uint32_t fewest = 0;
  std::uint32_t exact = 0;  ///< a bit for each accepted number; 0: every number from fewest on is accepted

  [[nodiscard]] constexpr bool IsOpenEnded() const { return exact == 0; }
  [[nodiscard]] constexpr bool Accepts(std::size_t count) const {
    return IsOpenEnded() ? count >= fewest : count < 32 && (exact >> count & 1U) != 0;
  }
  /// Whether the line has an accepted number of values. Cuts no more of the line than needed to tell.
  template <class Line>
  [[nodiscard]] constexpr bool AcceptsValuesOf(Line& line) const {
    return IsOpenEnded() ? fewest == 0 || line.HasAtLeast(fewest) : Accepts(line.Count());
  }

  /// In words: "at least 5 values", "4, 6 or 8 values".
  [[nodiscard]] std::string Text() const;
};

///@{
/// Makes a ValueCount. Numbers for OneOf and Exactly must be below 32.
[[nodiscard]] constexpr ValueCount Any() { return {}; }
[[nodiscard]] constexpr ValueCount AtLeast(std::uint32_t fewest) { return {fewest, 0}; }
template <class... Counts>
[[nodiscard]] constexpr ValueCount OneOf(Counts... counts) {
  return {0, ((1U << counts) | ...)};
}
[[nodiscard]] constexpr ValueCount Exactly(std::uint32_t count) { return OneOf(count); }
///@}

}  // namespace kestrin
