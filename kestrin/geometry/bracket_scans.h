#pragma once

/// @file
/// Points in square brackets, a number a value.

#include <optional>
#include <string_view>
#include <vector>

#include "kestrin/geometry/pending_points.h"
#include "kestrin/geometry/values.h"

namespace kestrin {

/// How the commands and attributes differ in reading a list of points. What they have in common: a value with
/// "[" opens the list, one with "]" and no "[" closes it, and in the open list every value is a number.
struct BracketScan {
  bool bareBracketIsZero;   ///< a bracket without a number is 0, else nothing
  bool emptyValueIsZero;    ///< an empty value in the open list is 0, else nothing
  bool readsCloseWhenShut;  ///< the number before "]" counts although the list is not open
  bool stopsAtClose;        ///< the rest of the line counts no more, else a later "[" opens the list again
  bool emptyPendingIsZero;  ///< an empty pending value is 0, else nothing
};

// clang-format off
//                                                 bare   empty  shut   stops  pending
inline constexpr BracketScan kPathScan            {false, true,  true,  false, false};
inline constexpr BracketScan kPolygonScan         {true,  false, false, true,  false};
inline constexpr BracketScan kOutlineScan         {true,  true,  false, true,  true };
inline constexpr BracketScan kKeepoutScan         {true,  true,  true,  false, true };
inline constexpr BracketScan kPlacementOutlineScan{true,  false, true,  false, true };
// clang-format on

/// Reads a list of points from those values of a line that may hold one into the numbers, which are replaced.
/// Without a "[" there, the pending values follow what was read.
void ReadPoints(const ValueCut& values, const BracketScan& scan, const PendingPoints& pending,
                std::vector<double>& numbers);

/// A single point.
struct BracketedPoint {
  double x = 0.0;
  double y = 0.0;
};

/// Reads the first value with "[" as x and the first with "]" and no "[" as y. Without a "[" there, the first
/// two pending values are x and y, as far as there are any.
[[nodiscard]] BracketedPoint ReadPoint(ValueCut values, const PendingPoints& pending);

/// The text of the first value with "[" after the line's first value, without the bracket.
[[nodiscard]] std::optional<std::string_view> FirstBracketed(Values& values);

}  // namespace kestrin
