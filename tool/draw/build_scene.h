#pragma once

/// @file
/// Making the scene of a board.

#include <optional>
#include <vector>

#include "kestrin/geometry/geometry_model.h"
#include "tool/draw/scene.h"

namespace kestrin::tool::draw {

/// What to show.
struct SceneOptions {
  std::optional<Box> window;     ///< only what may be seen in it
  std::vector<bool> brightNets;  ///< one for each net of the board; the rest dims; empty: nothing dims
};

/// Makes the scene of a board. The geometry is the model that the board was read from, or null. The scene
/// refers to the board, not to the geometry. Time and memory are in proportion to the size of board and
/// geometry; drawings beyond that are left out, and Scene::componentsLeftOut counts their components.
[[nodiscard]] Scene BuildScene(const Board& board, const CMGeom* geometry, const SceneOptions& options);

}  // namespace kestrin::tool::draw
