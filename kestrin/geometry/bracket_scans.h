#pragma once

/// @file
/// Reading points in square brackets, one number per value: `[1, 2, 3, 4]` is two points.

#include <optional>
#include <string_view>
#include <vector>

#include "kestrin/geometry/pending_points.h"
#include "kestrin/geometry/point_values.h"
#include "kestrin/geometry/values.h"

namespace kestrin {

/// The differences between commands and attributes in how they read a list of points. In all of them, a value
/// with "[" opens the list, a value with "]" and no "[" closes it, and every value of the open list is a
/// number.
struct BracketScan {
  bool bareBracketIsZero;   ///< a bracket without a number counts as 0; else it is left out
  bool emptyValueIsZero;    ///< an empty value in the open list counts as 0; else it is left out
  bool readsStrayClose;     ///< the number before a "]" counts even if the list is not open
  bool stopsAtClose;        ///< the rest of the line is ignored; else another "[" opens the list again
  bool emptyPendingIsZero;  ///< an empty pending value counts as 0; else it is left out
};

// clang-format off
//                                                 bare   empty  stray  stops  pending
inline constexpr BracketScan kPathScan            {false, true,  true,  false, false};
inline constexpr BracketScan kPolygonScan         {true,  false, false, true,  false};
inline constexpr BracketScan kOutlineScan         {true,  true,  false, true,  true };
inline constexpr BracketScan kKeepoutScan         {true,  true,  true,  false, true };
inline constexpr BracketScan kPlacementOutlineScan{true,  false, true,  false, true };
// clang-format on

/// Calls add for each number of a list of points, with the next value and whether an empty one counts as 0.
/// Returns whether a "[" was found. Each call of next returns a value with its bracket, or nothing at the
/// end.
template <class Next, class Add>
bool ScanPoints(Next next, const BracketScan& scan, Add add) {
  bool bracketed = false;
  bool open = false;
  while (const auto value = next()) {
    if (value->bracket == Bracket::kOpening) {
      add(*value, scan.bareBracketIsZero);
      bracketed = open = true;
    } else if (value->bracket == Bracket::kClosing) {
      if (open || scan.readsStrayClose) add(*value, scan.bareBracketIsZero);
      if (open && scan.stopsAtClose) break;
      open = false;
    } else if (open) {
      add(*value, scan.emptyValueIsZero);
    }
  }
  return bracketed;
}

/// Reads a list of points from the values of a line and replaces the numbers with it. If there is no "[", the
/// pending values are appended.
void ReadPoints(const ValueCut& values, const BracketScan& scan, const PendingPoints& pending,
                std::vector<double>& numbers);

/// A single point.
struct BracketedPoint {
  double x = 0.0;
  double y = 0.0;
};

/// Reads x from the first value with "[", and y from the first value with "]" and no "[". If there is no "[",
/// the first two pending values are x and y, as far as they exist.
[[nodiscard]] BracketedPoint ReadPoint(ValueCut values, const PendingPoints& pending);

/// The first value with "[", from value 2 on, without leading brackets.
[[nodiscard]] std::optional<std::string_view> FirstBracketed(Values& values);

}  // namespace kestrin
