#pragma once

/// @file
/// Pictures as SVG. The user unit is a millimetre.

#include "tool/draw/output_file.h"
#include "tool/draw/picture.h"

namespace kestrin::tool::draw {

/// Each coat is a group named "layer-…". Equal pictures make equal files.
void WriteSvg(const Picture& picture, OutputFile& file);

}  // namespace kestrin::tool::draw
