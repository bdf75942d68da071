#pragma once

/// @file
/// The board's part of the summary.

#include "kestrin/board/board.h"

namespace kestrin::tool {

/// Prints what people ask of a board: components on each side, pins, track lengths, vias, open connections,
/// and how sure the reading is.
void PrintBoardSummary(const Board& board);

}  // namespace kestrin::tool
