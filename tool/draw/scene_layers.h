#pragma once

/// @file
/// The layers of a scene while it is made: which there are, and what is on them.

#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tool/draw/scene.h"

namespace kestrin::tool::draw {

/// Whether a logical layer is a drawing on one side of the board, and not copper: "SILKSCREEN_1".
[[nodiscard]] bool IsDrawingLayer(std::string_view name);

/// Adds shapes to layers, and makes a layer when the first shape comes.
class SceneLayers {
 public:
  /// Shapes outside the window are left out. Of nets that are not bright, shapes are dimmed; none bright
  /// means that nothing is dimmed.
  SceneLayers(const Board& board, std::optional<Box> window, std::vector<bool> brightNets);

  ///@{
  /// The layer of something.
  [[nodiscard]] SceneLayer& OfNumber(int physicalLayer);
  [[nodiscard]] SceneLayer& OfName(std::string_view logicalLayer);
  [[nodiscard]] SceneLayer& OfRole(Role role, std::string_view id, std::string_view label);
  /// Of vias or drills; all layers if the list is empty.
  [[nodiscard]] SceneLayer& OfSpan(Role role, std::string_view id, std::string_view label,
                                   const std::vector<Index>& layers);
  ///@}

  /// Adds a shape with its holes, unless it has no size that can be drawn.
  void Add(SceneLayer& layer, Brush brush, const Owner& owner, std::span<const Point> points);
  void AddWithHoles(SceneLayer& layer, Brush brush, const Owner& owner, std::span<const Point> points,
                    const std::vector<Polygon>& holes);
  void Add(SceneLayer& layer, SceneText text, const Owner& owner);

  /// The layers with something on them, perhaps outside the window, in drawing order. Leaves this empty.
  [[nodiscard]] std::vector<SceneLayer> Take();
  [[nodiscard]] const Box& Bounds() const { return bounds_; }

 private:
  [[nodiscard]] SceneLayer& Find(std::string key, SceneLayer layer);
  [[nodiscard]] bool IsDimmed(const Owner& owner) const;

  const Board& board_;
  std::optional<Box> window_;
  std::vector<bool> brightNets_;
  std::map<std::string, SceneLayer, std::less<>> layers_;   // by key
  std::map<std::string, SceneLayer*, std::less<>> byName_;  // by logical layer
  std::map<int, SceneLayer*> byNumber_;                     // by physical layer
  std::set<std::string> ids_;
  Box bounds_;
};

}  // namespace kestrin::tool::draw
