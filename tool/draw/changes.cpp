#include "tool/draw/changes.h"

#include <algorithm>
#include <map>
#include <utility>

#include "kestrin/board/for_each_record.h"
#include "kestrin/geometry/geometry_model.h"
#include "tool/diff/wires.h"
#include "tool/draw/drawings.h"
#include "tool/draw/scene_layers.h"

namespace kestrin::tool::draw {
namespace {

/// Adds shapes to one of the two layers.
class ChangeLayer {
 public:
  ChangeLayer(SceneLayers& layers, PointStore& points, Role role, const char* name)
      : layers_(layers), points_(points), layer_(layers.OfRole(role, name, name)) {}

  /// Adds the legs of a wire; those of one width are a shape.
  void Add(const Wire& wire) {
    const std::span<const Point> points = Kept(wire.Points());
    if (wire.legs == 0) Add({.part = Part::kTrack, .form = Form::kLine}, points);
    for (std::size_t from = 0; from < wire.legs;) {
      const double width = wire.CopperAt(from).width;
      std::size_t to = from + 1;
      while (to < wire.legs && wire.CopperAt(to).width == width) ++to;
      Add({.part = Part::kTrack, .form = Form::kLine, .width = width}, points.subspan(from, to - from + 1));
      from = to;
    }
  }

  /// Adds the placement outlines of a component.
  void Add(const BoardSide& side, Point shift, const Component& component) {
    if (!component.geometryIndex) return;
    const CMGeomComponent& geometry = *side.models.geometry->m_pComponents->GetAt(*component.geometryIndex);
    ForEachRecord(geometry.m_pPlacementOutlines, [&](const CMGeomPlacementOutline& outline, Index) {
      std::vector<Point> points = PointsIn(*outline.m_pCoords);
      for (Point& point : points) point = Moved(component.transform.Apply(point), shift);
      Add({.form = Form::kContour}, Kept(points));
    });
  }

 private:
  std::span<const Point> Kept(const std::vector<Point>& points) {
    const std::span<Point> kept = points_.Make(points.size());
    std::copy(points.begin(), points.end(), kept.begin());
    return kept;
  }
  void Add(const Brush& brush, std::span<const Point> points) { layers_.Add(layer_, brush, {}, points); }

  SceneLayers& layers_;
  PointStore& points_;
  SceneLayer& layer_;
};

void AddWires(const Sides& sides, ChangeLayer& removed, ChangeLayer& added) {
  const MatchedWires wires = MatchWires(sides);
  for (std::size_t i = 0; i < wires.before.size(); ++i) {
    if (wires.isExact[i]) continue;
    removed.Add(wires.before[i]);
    if (wires.before[i].match) added.Add(wires.after[*wires.before[i].match]);
  }
  for (const Wire& wire : wires.after) {
    if (!wire.match) added.Add(wire);
  }
}

/// The components of a board by reference.
std::map<std::string_view, const Component*> ComponentsOf(const Board& board) {
  std::map<std::string_view, const Component*> components;
  for (const Component& component : board.components) components.emplace(component.name, &component);
  return components;
}

void AddComponents(const Sides& sides, const Difference& difference, ChangeLayer& removed,
                   ChangeLayer& added) {
  const auto before = ComponentsOf(sides.before.board);
  const auto after = ComponentsOf(sides.after.board);
  for (const Change& change : difference.changes) {
    if (change.kind != ChangedKind::kComponent) continue;
    if (change.type != ChangeType::kAdded) removed.Add(sides.before, {}, *before.at(change.name));
    if (change.type != ChangeType::kRemoved) added.Add(sides.after, sides.shift, *after.at(change.name));
  }
}

}  // namespace

void AddChanges(const Sides& sides, const Difference& difference, const std::optional<Box>& window,
                Scene& scene) {
  // With a window, a layer stays although nothing is on it: somebody may name it.
  constexpr Box kEverywhere{-1e9, -1e9, 1e9, 1e9};
  SceneLayers layers(*scene.board, window.value_or(kEverywhere), {});
  ChangeLayer removed(layers, scene.points, Role::kRemoved, "removed");
  ChangeLayer added(layers, scene.points, Role::kAdded, "added");
  AddWires(sides, removed, added);
  AddComponents(sides, difference, removed, added);
  const Box& bounds = layers.Bounds();
  if (!bounds.IsEmpty()) {
    scene.bounds.Add({bounds.x0, bounds.y0});
    scene.bounds.Add({bounds.x1, bounds.y1});
  }
  for (SceneLayer& layer : layers.Take()) scene.layers.push_back(std::move(layer));
}

}  // namespace kestrin::tool::draw
