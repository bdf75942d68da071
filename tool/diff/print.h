#pragma once

/// @file
/// Printing differences.

#include "tool/diff/sides.h"

namespace kestrin::tool {

/// Prints differences for people: grouped by kind, and the first of each group unless all are asked for.
void PrintDifference(const Sides& sides, const Difference& difference, bool all);

/// Prints differences as a JSON document.
void PrintDifferenceAsJson(const Difference& difference);

}  // namespace kestrin::tool
