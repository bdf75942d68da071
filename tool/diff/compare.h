#pragma once

/// @file
/// Comparing two boards.

#include "tool/diff/sides.h"

namespace kestrin::tool {

/// Reads the boards of two sets of models. If the copper of the second does not confirm where its pins are,
/// it is read as the first. Finds whether the second is shifted as a whole, and takes that out.
[[nodiscard]] Sides ReadSides(const BoardModels& before, const BoardModels& after);

/// Finds all differences. Completes the sides with the nets that were renamed.
[[nodiscard]] Difference Compare(Sides& sides);

}  // namespace kestrin::tool
