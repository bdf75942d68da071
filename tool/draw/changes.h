#pragma once

/// @file
/// Showing in a scene what changed between two boards.

#include "tool/diff/sides.h"
#include "tool/draw/scene.h"

namespace kestrin::tool::draw {

/// Adds two layers to the scene of the first board: what the second board lacks, and what it adds. They show
/// wires and the placement outlines of components; what changed is on both.
void AddChanges(const Sides& sides, const Difference& difference, Scene& scene);

}  // namespace kestrin::tool::draw
