#pragma once

/// @file
/// The layers of a board.

#include <string_view>

namespace kestrin {

struct Board;
struct BoardModels;

/// Adds the layers and the names of logical layers to the board.
void ReadLayers(const BoardModels& models, Board& board);

/// Whether a name is one of the eighteen of the two sides, such as "PAD_1".
[[nodiscard]] bool IsSideLayer(std::string_view layer);

}  // namespace kestrin
