#pragma once

/// @file
/// The summary of a board.

#include "kestrin/board/board.h"

namespace kestrin::tool {

/// Prints components on each side, pins, track lengths, vias, open connections, and how sure the reading is.
void PrintBoardSummary(const Board& board);

}  // namespace kestrin::tool
