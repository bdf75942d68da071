#pragma once

/// @file
/// Comparing two boards.

#include "tool/diff/sides.h"

namespace kestrin::tool {

/// Reads the boards of two sets of models. The second is read with the width step of the first, and with its
/// placement if the copper does not confirm the second's own. Finds whether the second is shifted as a whole,
/// and takes that out.
[[nodiscard]] Sides ReadSides(const BoardModels& before, const BoardModels& after);

/// Finds all differences. Completes the sides with the nets that were renamed.
[[nodiscard]] Difference Compare(Sides& sides);

}  // namespace kestrin::tool
