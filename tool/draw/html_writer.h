#pragma once

/// @file
/// A picture as a page to look around in: one file that needs no network.

#include "tool/draw/output_file.h"
#include "tool/draw/picture.h"

namespace kestrin::tool::draw {

/// The page holds all layers and views. Those of the picture, its nets and its box are what it shows first.
void WriteHtml(const Picture& picture, OutputFile& file);

}  // namespace kestrin::tool::draw
