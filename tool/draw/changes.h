#pragma once

/// @file
/// Showing in a scene what changed between two boards.

#include <optional>

#include "tool/diff/sides.h"
#include "tool/draw/scene.h"

namespace kestrin::tool::draw {

/// Adds two layers to the scene of the first board: what the second board lacks, and what it adds. They show
/// wires and the placement outlines of components, as far as they may be seen in the window; what changed is
/// on both.
void AddChanges(const Sides& sides, const Difference& difference, const std::optional<Box>& window,
                Scene& scene);

}  // namespace kestrin::tool::draw
