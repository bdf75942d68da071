#include "tool/draw/changes.h"

#include <algorithm>
#include <map>

#include "kestrin/board/for_each_record.h"
#include "kestrin/geometry/geometry_model.h"
#include "tool/diff/wires.h"

namespace kestrin::tool::draw {
namespace {

/// Adds shapes to one of the two layers.
class ChangeLayer {
 public:
  ChangeLayer(Scene& scene, Role role, const char* name) : scene_(scene) {
    layer_.id = name;
    layer_.label = name;
    layer_.role = role;
  }

  void Add(const Wire& wire) {
    const double width = wire.legs == 0 ? 0.0 : wire.CopperAt(0).width;
    Add({.part = Part::kTrack, .form = Form::kLine, .width = width}, wire.Points());
  }

  /// Adds the placement outlines of a component.
  void Add(const BoardSide& side, Point shift, const Component& component) {
    if (!component.geometryIndex) return;
    const CMGeomComponent& geometry = *side.models.geometry->m_pComponents->GetAt(*component.geometryIndex);
    ForEachRecord(geometry.m_pPlacementOutlines, [&](const CMGeomPlacementOutline& outline, Index) {
      std::vector<Point> points;
      const NumberArray& coordinates = *outline.m_pCoords;
      for (std::int64_t i = 0; i + 1 < coordinates.GetSize(); i += 2) {
        points.push_back(Moved(component.transform.Apply({coordinates[i], coordinates[i + 1]}), shift));
      }
      Add({.form = Form::kContour}, points);
    });
  }

  void Finish() { scene_.layers.push_back(std::move(layer_)); }

 private:
  void Add(const Brush& brush, const std::vector<Point>& points) {
    if (!std::all_of(points.begin(), points.end(), IsFinite)) return;
    const std::span<Point> kept = scene_.points.Make(points.size());
    std::copy(points.begin(), points.end(), kept.begin());
    for (const Point point : points) scene_.bounds.Add(point);
    layer_.batches[brush].push_back({.points = kept, .owner = {}, .isHole = false});
  }

  Scene& scene_;
  SceneLayer layer_;
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

void AddChanges(const Sides& sides, const Difference& difference, Scene& scene) {
  ChangeLayer removed(scene, Role::kRemoved, "removed");
  ChangeLayer added(scene, Role::kAdded, "added");
  AddWires(sides, removed, added);
  AddComponents(sides, difference, removed, added);
  removed.Finish();
  added.Finish();
}

}  // namespace kestrin::tool::draw
