#include "kestrin/board/findings/checks.h"
#include "kestrin/board/names.h"
#include "kestrin/board/point_strips.h"
#include "kestrin/neutral/component_model.h"

namespace kestrin {
namespace {

FindingPlace PlaceOf(const CheckedSet& set, const Component& component, const Collector& findings) {
  return findings.PlaceOf(ImportFile::kNeutral,
                          set.models.components->m_pInfos->GetAt(component.sourceIndex));
}

/// Which points are inside an outline or on it.
std::vector<bool> AreInside(const std::vector<Point>& points, const Polygon& outline) {
  constexpr double kOnOutline = 1e-6;
  std::vector<bool> inside(points.size());
  Effort effort(points.size() + outline.size());
  PointStrips strips;
  strips.Assign(points);
  for (const std::uint32_t point : strips.Inside(outline, effort)) inside[point] = true;
  Point last = outline.back();
  for (const Point corner : outline) {
    strips.TakeNearLeg(last, corner, kOnOutline, effort, [&](std::uint32_t point) { inside[point] = true; });
    last = corner;
  }
  if (effort.IsSpent()) inside.assign(points.size(), true);  // do not report what was not computed
  return inside;
}

}  // namespace

void CheckNamesOfComponents(const CheckedSet& set, const Board& board, Collector& findings) {
  NameIndex byName(board.components.size());
  for (Index i = 0; i < board.components.size(); ++i) {
    const Component& component = board.components[i];
    const Index first = byName.Add(component.name, i);
    if (first == i) continue;
    findings.Add(FindingCode::kDuplicateComponent, [&] {
      return Finding{
          .message = "component " + Quoted(component.name) + " is there more than once",
          .at = {PlaceOf(set, component, findings), PlaceOf(set, board.components[first], findings)}};
    });
  }
}

void CheckGeometriesOfComponents(const CheckedSet& set, const Board& board, Collector& findings) {
  if (set.models.geometry == nullptr || !findings.Trusts(ImportFile::kGeometry)) return;
  NameMatches matches(FindingCode::kUnknownGeometry, "geometries of components", "a component geometry");
  for (const Component& component : board.components) {
    if (component.geometryIndex) {
      matches.Match(component.geometry);
      continue;
    }
    matches.Miss(component.geometry, [&] {
      return Finding{.message = "component " + Quoted(component.name) + " has geometry " +
                                Quoted(component.geometry) + ", which the Geometry file does not have",
                     .at = {PlaceOf(set, component, findings)}};
    });
  }
  std::move(matches).Finish(findings);
}

void CheckPlacesOfComponents(const CheckedSet& set, const Board& board, Collector& findings) {
  constexpr std::size_t kLeastCorners = 3;
  if (board.outline.size() < kLeastCorners) return;
  std::vector<Point> origins;
  for (const Component& component : board.components) origins.push_back(component.position);
  const std::vector<bool> inside = AreInside(origins, board.outline);
  for (std::size_t i = 0; i < origins.size(); ++i) {
    if (inside[i]) continue;
    findings.Add(FindingCode::kOutsideOutline, [&] {
      const Component& component = board.components[i];
      return Finding{
          .message = "component " + Quoted(component.name) + " is outside the outline of the board",
          .at = {PlaceOf(set, component, findings)}};
    });
  }
}

}  // namespace kestrin
