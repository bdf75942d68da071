#pragma once

/// @file
/// The layers of a board.

namespace kestrin {

struct Board;
struct BoardModels;

/// Adds the layers and the names of logical layers to the board.
void ReadLayers(const BoardModels& models, Board& board);

}  // namespace kestrin
