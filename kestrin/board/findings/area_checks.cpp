#include "kestrin/board/findings/checks.h"
#include "kestrin/board/polygons.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

constexpr std::size_t kLeastPoints = 3;

std::string CountOfPoints(std::size_t count) {
  return std::to_string(count) + (count == 1 ? " point" : " points");
}

/// Checks an outline of a geometry. An empty list means that there is no outline.
void CheckOutline(const NumberArray& numbers, std::string_view what, const void* record,
                  Collector& findings) {
  if (numbers.IsEmpty()) return;
  const std::size_t points = PolygonOf(numbers, 1.0).size();
  const bool isOdd = numbers.GetSize() % 2 != 0;
  if (points >= kLeastPoints && !isOdd) return;
  findings.Add(FindingCode::kDegenerateArea, [&] {
    return Finding{.message = std::string(what) + " has " + CountOfPoints(points) +
                              (isOdd ? " and a last coordinate without its other half" : ""),
                   .at = {findings.PlaceOf(ImportFile::kGeometry, record)}};
  });
}

template <class List>
void CheckVertices(const List& areas, std::string_view what, const CMTracesFIL& fill, Collector& findings) {
  ForEachRecord(areas, [&](const auto& area, Index) {
    if (static_cast<std::size_t>(area.m_pVerArray->GetSize()) > kLeastPoints) return;
    const std::size_t points = VerticesOf(area, 1.0).size();
    if (points >= kLeastPoints) return;
    findings.Add(FindingCode::kDegenerateArea, [&] {
      return Finding{.message = std::string(what) + " of a fill of net " +
                                Quoted(ComparedName(fill.m_sName1.View())) + " has " + CountOfPoints(points),
                     .at = {findings.PlaceOf(ImportFile::kTraces, &area)}};
    });
  });
}

/// Checks the coordinates of keep-outs or placement outlines.
template <class List>
void CheckAreasIn(const List& areas, const std::string& what, Collector& findings) {
  ForEachRecord(areas,
                [&](const auto& area, Index) { CheckOutline(*area.m_pCoords, what, &area, findings); });
}

void CheckOutlinesOf(const CMGeom& geometry, Collector& findings) {
  const CMGeomBoard& board = *geometry.m_pBoard;
  CheckOutline(*board.m_pPlacementOutline, "the placement outline of the board", board.m_pPlacementOutline,
               findings);
  CheckOutline(*board.m_pRoutingOutline, "the routing outline of the board", board.m_pRoutingOutline,
               findings);
  ForEachRecord(geometry.m_pComponents, [&](const CMGeomComponent& component, Index) {
    const std::string name = Quoted(ComparedName(component.m_sName.View()));
    CheckOutline(*component.m_pBodyOutline, "the body outline of " + name, component.m_pBodyOutline,
                 findings);
    CheckAreasIn(component.m_pPlacementOutlines, "a placement outline of " + name, findings);
    CheckAreasIn(component.m_pRoutingKeepouts, "a keep-out of " + name, findings);
    CheckAreasIn(component.m_pTraceKeepouts, "a keep-out of " + name, findings);
    CheckAreasIn(component.m_pViaKeepouts, "a keep-out of " + name, findings);
  });
  ForEachRecord(geometry.m_pGenericParts, [&](const CMGeomGenericPart& part, Index) {
    const std::string name = Quoted(ComparedName(part.m_sName.View()));
    CheckOutline(*part.m_pBodyOutline, "the body outline of " + name, part.m_pBodyOutline, findings);
  });
}

}  // namespace

void CheckAreas(const CheckedSet& set, const Board& /*board*/, Collector& findings) {
  if (set.models.geometry != nullptr) CheckOutlinesOf(*set.models.geometry, findings);
  if (set.models.traces == nullptr) return;
  ForEachRecord(set.models.traces->m_pFilArray, [&](const CMTracesFIL& fill, Index) {
    CheckVertices(fill.m_pAreArray, "an area", fill, findings);
    CheckVertices(fill.m_pArsArray, "an area", fill, findings);
    CheckVertices(fill.m_pIslArray, "a hole", fill, findings);
    CheckVertices(fill.m_pIssArray, "a hole", fill, findings);
  });
}

}  // namespace kestrin
