#pragma once

/// @file
/// The units of the files.

#include "kestrin/board/board.h"

namespace kestrin {

struct BoardModels;

/// The unit of each file: the one that it names, else the Neutral file's, else the board geometry's, else
/// millimetres.
[[nodiscard]] Units ReadUnits(const BoardModels& models);

}  // namespace kestrin
