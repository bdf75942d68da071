#pragma once

/// @file
/// The layers of a board.

namespace kestrin {

struct Board;
struct BoardModels;

/// Gives the board its layers and the names that lead to them.
void ReadLayers(const BoardModels& models, Board& board);

}  // namespace kestrin
