#pragma once

/// @file
/// Pictures as PNG and PDF, by Cairo. If the build did not find it, both raise UsageError.

#include "tool/draw/output_file.h"
#include "tool/draw/picture.h"

namespace kestrin::tool::draw {

/// As many pixels wide as the picture says, else 2000.
void WritePng(const Picture& picture, OutputFile& file);

/// In the size of the board.
void WritePdf(const Picture& picture, OutputFile& file);

}  // namespace kestrin::tool::draw
