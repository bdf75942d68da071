#pragma once

/// @file
/// Drawing the objects of geometries onto the board.

#include <array>
#include <map>
#include <string_view>
#include <vector>

#include "kestrin/geometry/draw_objects.h"
#include "kestrin/geometry/geometry_text.h"
#include "tool/draw/scene_layers.h"

namespace kestrin::tool::draw {

/// Where a geometry is on the board.
struct Placement {
  Transform transform;
  Side side = Side::kTop;
};

/// What a drawing object looks like in its geometry.
struct Drawn {
  std::vector<Point> points;
  Form form = Form::kLine;
  double width = 0.0;

  friend bool operator==(const Drawn&, const Drawn&) = default;
};

/// Draws the contents of geometries. Files that name large geometries very often would make a scene far
/// larger than the files, so there is a limit to the points of all drawings together.
class Drawings {
 public:
  Drawings(const Board& board, SceneLayers& layers, PointStore& points)
      : board_(board), layers_(layers), points_(points) {}

  /// Whether there is room for more.
  [[nodiscard]] bool HasRoom() const { return pointsLeft_ > 0; }

  /// Draws objects on the layers that they name. In a padstack, circles are always filled.
  /// The objects must stay as long as the drawings.
  void Draw(const CMGeomDrawObjArray& objects, const Placement& placement, const Owner& owner, Part part);
  /// Draws the objects of a padstack once, whatever layers they name.
  void DrawOnce(const CMGeomDrawObjArray& objects, const Placement& placement, const Owner& owner,
                SceneLayer& layer);
  void Draw(const CMGeomText& text, const Placement& placement, const Owner& owner);
  /// Draws an outline, coordinates x, y, x, y, …
  void Draw(const NumberArray& outline, const Placement& placement, const Owner& owner, SceneLayer& layer,
            Brush brush);
  /// Draws a hole.
  void DrawDot(Point position, double diameter, const Owner& owner, SceneLayer& layer, Part part);

 private:
  /// An object of a geometry, prepared once for all places where the geometry is.
  struct Prepared {
    Drawn drawn;
    std::string_view layer;               // its name
    std::array<SceneLayer*, 2> layers{};  // on each side; null if not yet known
    bool isRepeated = false;              // an earlier object of the geometry looks the same
  };
  [[nodiscard]] std::vector<Prepared>& Prepare(const CMGeomDrawObjArray& objects, Part part);
  void DrawPoints(std::span<const Point> points, const Placement& placement, const Owner& owner,
                  SceneLayer& layer, Brush brush);

  const Board& board_;
  SceneLayers& layers_;
  PointStore& points_;
  std::map<const CMGeomDrawObjArray*, std::vector<Prepared>> prepared_;
  std::size_t pointsLeft_ = 20'000'000;
};

/// The points of a coordinate list; a number without a partner is left out.
[[nodiscard]] std::vector<Point> PointsIn(const NumberArray& numbers);

/// The name of the layer of an object.
[[nodiscard]] std::string_view LayerOf(const CMGeomDrawObj& object);

}  // namespace kestrin::tool::draw
