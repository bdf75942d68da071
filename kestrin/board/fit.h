#pragma once

/// @file
/// Choosing how components are placed.

#include "kestrin/board/board.h"
#include "kestrin/board/footprints.h"

namespace kestrin {

struct BoardOptions;

/// Fits the placement of a board's components to its copper: of the readings that the options leave open, the
/// one under which most pins touch copper of their own net. Returns the board's reading with what it says of
/// placement.
[[nodiscard]] Reading FitPlacement(const Board& board, const Footprints& footprints,
                                   const BoardOptions& options);

}  // namespace kestrin
