#include "bench/tallies.h"

namespace kestrin::bench {
namespace {

template <class List>
std::uint64_t Records(const List& list) {
  return static_cast<std::uint64_t>(list->GetSize());
}

void Add(Tally& tally, const RecordArray<CMTracesSEG>& segments) {
  tally.records += 1 + Records(&segments);
  for (const auto* segment : segments) tally.coordinates += segment->m_dValue1 + segment->m_dValue2;
}

void Add(Tally& tally, const RecordArray<CMTracesVER>& vertices) {
  tally.records += 1 + Records(&vertices);
  for (const auto* vertex : vertices) tally.coordinates += vertex->m_dX + vertex->m_dY;
}

void Add(Tally& tally, const NumberArray& numbers) {
  for (const double number : numbers) tally.coordinates += number;
}

void Add(Tally& tally, const CMGeomDrawObj& object) {
  if (const auto* path = dynamic_cast<const CMGeomPath*>(&object)) Add(tally, *path->m_pCoords);
  if (const auto* polygon = dynamic_cast<const CMGeomPolygon*>(&object)) Add(tally, *polygon->m_pCoords);
  if (const auto* circle = dynamic_cast<const CMGeomCircle*>(&object)) {
    for (const double number : {circle->m_dX, circle->m_dY, circle->m_dSize}) tally.coordinates += number;
  }
  if (const auto* arc = dynamic_cast<const CMGeomArc*>(&object)) {
    for (const double number : {arc->m_dX1, arc->m_dY1, arc->m_dX2, arc->m_dY2, arc->m_dX3, arc->m_dY3}) {
      tally.coordinates += number;
    }
  }
}

/// What all geometries have in common.
template <class Geometry>
void Add(Tally& tally, const Geometry& geometry) {
  tally.records += 1 + Records(geometry.m_pDrawObjs) + Records(geometry.m_pTexts);
  for (const auto* object : *geometry.m_pDrawObjs) Add(tally, *object);
}

}  // namespace

Tally CountTraces(const CMTraces& traces) {
  Tally tally;
  tally.records = Records(traces.m_pXrfArray) + Records(traces.m_pTttArray) + Records(traces.m_pNetArray);
  for (const auto* net : *traces.m_pNetArray) {
    tally.records += Records(net->m_pGuiArray);
    for (const auto* wire : *net->m_pWirArray) Add(tally, *wire->m_pSegArray);
    for (const auto* incomplete : *net->m_pIncArray) Add(tally, *incomplete->m_pSegArray);
    for (const auto* antenna : *net->m_pAntWirArray) Add(tally, *antenna->m_pSegArray);
  }
  for (const auto* fill : *traces.m_pFilArray) {
    tally.records += Records(fill->m_pTtiArray);
    Add(tally, *fill->m_pVerArray);
    for (const auto* area : *fill->m_pAreArray) Add(tally, *area->m_pVerArray);
    for (const auto* island : *fill->m_pIslArray) Add(tally, *island->m_pVerArray);
  }
  return tally;
}

Tally CountGeometry(const CMGeom& geom) {
  Tally tally;
  tally.records = Records(geom.m_pStackup->m_pLayers) + Records(geom.m_pBoard->m_pRoutingKeepouts);
  Add(tally, *geom.m_pBoard);
  for (const auto* pin : *geom.m_pPins) Add(tally, *pin);
  for (const auto* component : *geom.m_pComponents) {
    Add(tally, *component);
    tally.records += Records(component->m_pPlacementOutlines) + Records(component->m_pPinDefs);
    for (const auto* pin : *component->m_pPinDefs) tally.coordinates += pin->m_dX + pin->m_dY;
  }
  return tally;
}

}  // namespace kestrin::bench
