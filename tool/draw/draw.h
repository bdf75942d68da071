#pragma once

/// @file
/// kestrin draw: a picture of the board.

#include "tool/board.h"
#include "tool/draw/draw_board.h"

namespace kestrin::tool::draw {

/// Imports the files and draws the board into a file, whose ending says the format. Returns the exit status.
/// Raises UsageError if an option is wrong or the file cannot be written.
[[nodiscard]] int Draw(const ExportSet& files, const ReadingWords& reading, const DrawWords& words);

}  // namespace kestrin::tool::draw
