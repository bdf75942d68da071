#pragma once

/// @file
/// Fitting the placement of components.

#include "kestrin/board/board.h"
#include "kestrin/board/footprints.h"

namespace kestrin {

struct BoardOptions;

/// Fits the placement of a board's components to its copper: of the readings that the options leave open,
/// chooses the one with the most pins that touch copper of their own net. Returns the board's reading,
/// completed with the placement. Uses a second thread if that is worth it.
[[nodiscard]] Reading FitPlacement(const Board& board, const Footprints& footprints,
                                   const BoardOptions& options, bool isWorthThread);

}  // namespace kestrin
