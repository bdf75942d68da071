#pragma once

/// @file
/// How a scene is looked at: which parts of its layers are painted, in which order and colours.

#include <cstdint>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tool/draw/scene.h"

namespace kestrin::tool::draw {

enum class View : std::uint8_t {
  kLayers,  ///< all layers, seen from the top
  kTop,     ///< the finished board from the top
  kBottom,  ///< the finished board from below
};

enum class Theme : std::uint8_t { kDark, kPrint };

/// Red, green and blue as 0xRRGGBB.
using Colour = std::uint32_t;

[[nodiscard]] Colour BackgroundOf(Theme theme);

/// The colour of a layer of a scene in the view of all layers.
[[nodiscard]] Colour ColourOf(const Scene& scene, const SceneLayer& layer, Theme theme);

/// How polygons are filled.
struct Fill {
  double opacity = 1.0;
  bool hasContour = false;  ///< a thin one
};

/// Paints some parts of a layer in one colour.
struct Coat {
  const SceneLayer* layer = nullptr;
  std::string id;     ///< unique, as SceneLayer::id
  std::string label;  ///< as SceneLayer::label
  std::set<Part> parts;
  bool hasTexts = false;
  Colour colour = 0;
  Colour contour = 0;  ///< the colour of contours around filled polygons
  Fill areas;          ///< how areas are filled
  Fill others;         ///< how other polygons are filled

  [[nodiscard]] const Fill& FillOf(Part part) const { return part == Part::kArea ? areas : others; }
};

/// How the scene looks in a view, first coats first. If layers were chosen, of no others.
[[nodiscard]] std::vector<Coat> CoatsOf(const Scene& scene, View view, Theme theme,
                                        const std::optional<std::set<const SceneLayer*>>& chosen);

}  // namespace kestrin::tool::draw
