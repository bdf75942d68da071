#pragma once

/// @file
/// A scene: what the pictures of a board show, before anybody decides how. The writers of all formats walk
/// it.
///
///     for (const SceneLayer& layer : scene.layers) {
///       for (const auto& [brush, shapes] : layer.batches) Draw(brush, shapes);
///     }
///
/// Layers are in drawing order, seen from the top. Lengths are in millimetres and y points up, as on the
/// board. A scene refers to points and names of its board, which must outlive it.

#include <cstdint>
#include <limits>
#include <map>
#include <span>
#include <string>
#include <tuple>
#include <vector>

#include "kestrin/board/board.h"
#include "tool/draw/point_store.h"

namespace kestrin::tool::draw {

/// An index of nothing.
inline constexpr Index kNone = std::numeric_limits<Index>::max();

/// A rectangle on the board. Contains nothing at first.
struct Box {
  double x0 = std::numeric_limits<double>::infinity();
  double y0 = std::numeric_limits<double>::infinity();
  double x1 = -std::numeric_limits<double>::infinity();
  double y1 = -std::numeric_limits<double>::infinity();

  [[nodiscard]] bool IsEmpty() const { return !(x0 <= x1 && y0 <= y1); }
  [[nodiscard]] double Width() const { return x1 - x0; }
  [[nodiscard]] double Height() const { return y1 - y0; }
  [[nodiscard]] bool Meets(const Box& other) const {
    return x0 <= other.x1 && other.x0 <= x1 && y0 <= other.y1 && other.y0 <= y1;
  }
  void Add(Point point);
  /// Moves the sides outwards.
  void Grow(double length);
};

/// The rectangle around points.
[[nodiscard]] Box BoxAround(std::span<const Point> points);

/// What a layer shows. In drawing order.
enum class Role : std::uint8_t {
  kBoard,       ///< the area of the board
  kBelow,       ///< a drawing on the bottom: silkscreen, solder mask, placement, …
  kCopper,      ///< a physical layer
  kVias,        ///< vias that join the same layers
  kAbove,       ///< a drawing on the top, or on an unknown layer
  kPlacements,  ///< placement outlines of components
  kBodies,      ///< body outlines and references of components
  kKeepouts,
  kOpen,  ///< connections that are not routed yet
  kDrills,
  kRemoved,  ///< what another board lacks
  kAdded,    ///< what another board adds
};

/// What a shape is part of. Later ones are drawn over earlier ones of their layer.
enum class Part : std::uint8_t { kArea, kTrack, kDrawing, kPad };

enum class Form : std::uint8_t {
  kLine,     ///< an open polyline, drawn with a pen
  kContour,  ///< a closed one
  kFill,     ///< a filled polygon
  kDot,      ///< a filled circle around one point, as wide as the pen
};

/// How the shapes of a batch are drawn.
struct Brush {
  bool isDimmed = false;  ///< the shapes are not of the nets that were asked for
  Part part = Part::kDrawing;
  Form form = Form::kLine;
  double width = 0.0;  ///< of the pen; 0 if unknown, which is drawn as a thin line

  friend bool operator<(const Brush& a, const Brush& b) {
    return std::tuple(!a.isDimmed, a.part, a.form, a.width) <
           std::tuple(!b.isDimmed, b.part, b.form, b.width);
  }
};

/// What a shape belongs to: indexes into the lists of the board, or kNone.
struct Owner {
  Index net = kNone;
  Index component = kNone;
  Index pin = kNone;

  friend bool operator==(const Owner&, const Owner&) = default;
};

struct Shape {
  std::span<const Point> points;
  Owner owner;
  bool isHole = false;  ///< in the last shape before it that is none
};

/// The width of a letter, in heights of capitals, on average.
inline constexpr double kLetterWidth = 0.75;

/// A line of text.
struct SceneText {
  std::string text;  ///< bytes of the file
  Point position;
  double height = 0.0;  ///< of a capital letter
  ///@{
  /// Takes a step along the line of text to (cosX, sinX), and a step up to (cosY, sinY).
  double cosX = 1.0;
  double sinX = 0.0;
  double cosY = 0.0;
  double sinY = 1.0;
  ///@}
  int column =
      0;        ///< the point of the text that is at the position: 0 its left end, 1 its middle, 2 its right
  int row = 2;  ///< likewise: 0 the top of capitals, 1 their middle, 2 the baseline
  bool isDimmed = false;
};

/// About where a text is: its letters may be a little wider or narrower.
[[nodiscard]] Box BoxAround(const SceneText& text);

struct SceneLayer {
  std::string id;     ///< unique, of letters, digits, "_", "-" and "."
  std::string label;  ///< for people; bytes of the file
  Role role = Role::kAbove;
  int order = 0;             ///< among the layers of its role
  std::vector<Index> spans;  ///< the layers of the board on which it lies; empty for vias and drills: all
  std::map<Brush, std::vector<Shape>> batches;
  std::vector<SceneText> texts;

  [[nodiscard]] bool IsEmpty() const { return batches.empty() && texts.empty(); }
};

struct Scene {
  Scene() = default;
  Scene(Scene&&) = default;
  Scene& operator=(Scene&&) = default;
  Scene(const Scene&) = delete;
  Scene& operator=(const Scene&) = delete;
  ~Scene() = default;

  const Board* board = nullptr;
  std::vector<SceneLayer> layers;
  Box bounds;                         ///< of all shapes
  std::size_t componentsLeftOut = 0;  ///< whose drawings were left out because they would be too many
  PointStore points;                  ///< of shapes that are not in the board
};

}  // namespace kestrin::tool::draw
