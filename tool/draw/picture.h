#pragma once

/// @file
/// What all writers of pictures get.

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <string>
#include <vector>

#include "tool/draw/scene.h"
#include "tool/draw/views.h"

namespace kestrin::tool::draw {

/// A scene in a view, ready to be written.
struct Picture {
  const Scene* scene = nullptr;
  View view = View::kLayers;
  Theme theme = Theme::kDark;
  bool isThemeChosen = false;                               ///< else a page follows its browser
  std::optional<std::set<const SceneLayer*>> chosenLayers;  ///< none: all
  std::vector<bool> chosenNets;                             ///< one for each net; empty: none is chosen
  std::vector<Coat> coats;  ///< of the chosen layers, in the view and the theme
  Colour background = 0;
  bool isMirrored = false;   ///< seen from below
  bool hasTags = false;      ///< say the nets of tracks, vias and areas
  Box box;                   ///< what the picture shows, in board coordinates
  Box wholeBox;              ///< what it would show if nobody had chosen a box
  std::optional<int> width;  ///< in pixels; must not make the height too large for an int

  /// The width of lines that have none.
  [[nodiscard]] double ThinLine() const { return std::max(box.Width(), box.Height()) / 2000.0; }
  /// The height in pixels, if there is a width.
  [[nodiscard]] int HeightInPixels() const {
    return std::max(1, static_cast<int>(std::lround(*width * box.Height() / box.Width())));
  }
  /// The left edge of the box as it is seen.
  [[nodiscard]] double Left() const { return isMirrored ? -box.x1 : box.x0; }
};

/// How much dimmed shapes are left to see.
inline constexpr double kDimmed = 0.18;

/// The height of capital letters of usual fonts, as a part of the font's size.
inline constexpr double kCapitals = 0.72;

}  // namespace kestrin::tool::draw
