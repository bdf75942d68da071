// What the models hold, counted as the yardsticks count theirs.

#include <initializer_list>

#include "bench/kestrin_works.h"

namespace kestrin::bench {
namespace {

std::uint64_t Length(const CString& text) { return text.View().size(); }

template <class LIST>
std::uint64_t Records(const LIST& list) {
  return static_cast<std::uint64_t>(list->GetSize());
}

void Add(Tally& tally, const RecordArray<CMTracesSEG>& segments) {
  tally.records += 1 + Records(&segments);
  for (const auto* segment : segments) {
    tally.coordinates += segment->m_dValue1;
    tally.coordinates += segment->m_dValue2;
    tally.characters += Length(segment->m_sValue4) + Length(segment->m_sValue5);
  }
}

void Add(Tally& tally, const RecordArray<CMTracesVER>& vertices) {
  tally.records += 1 + Records(&vertices);
  for (const auto* vertex : vertices) {
    tally.coordinates += vertex->m_dX;
    tally.coordinates += vertex->m_dY;
  }
}

void Add(Tally& tally, const NumberArray& numbers) {
  for (const double number : numbers) tally.coordinates += number;
}

void Add(Tally& tally, const CMGeomDrawObj& object) {
  const auto add = [&](const CString& layer, double width, std::initializer_list<double> numbers) {
    tally.characters += Length(layer);
    tally.coordinates += width;
    for (const double number : numbers) tally.coordinates += number;
  };
  if (const auto* path = dynamic_cast<const CMGeomPath*>(&object)) {
    add(path->m_sLayer, path->m_dWidth, {});
    Add(tally, *path->m_pCoords);
  } else if (const auto* polygon = dynamic_cast<const CMGeomPolygon*>(&object)) {
    add(polygon->m_sLayer, 0.0, {});
    Add(tally, *polygon->m_pCoords);
  } else if (const auto* circle = dynamic_cast<const CMGeomCircle*>(&object)) {
    add(circle->m_sLayer, circle->m_dWidth, {circle->m_dX, circle->m_dY, circle->m_dSize});
  } else if (const auto* arc = dynamic_cast<const CMGeomArc*>(&object)) {
    add(arc->m_sLayer, arc->m_dWidth,
        {arc->m_dX1, arc->m_dY1, arc->m_dX2, arc->m_dY2, arc->m_dX3, arc->m_dY3});
  }
}

/// What all geometries have in common.
template <class GEOMETRY>
void Add(Tally& tally, const GEOMETRY& geometry) {
  tally.records += 1 + Records(geometry.m_pDrawObjs) + Records(geometry.m_pTexts);
  tally.characters += Length(geometry.m_sName) + Length(geometry.m_sUnits);
  for (const auto* object : *geometry.m_pDrawObjs) Add(tally, *object);
}

}  // namespace

Tally CountTraces(const CMTraces& traces) {
  Tally tally;
  tally.records = Records(traces.m_pXrfArray) + Records(traces.m_pTttArray) + Records(traces.m_pNetArray);
  for (const auto* net : *traces.m_pNetArray) {
    tally.characters += Length(net->m_sName);
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
  tally.records = Records(geom.m_pStackup->m_pLayers);
  Add(tally, *geom.m_pBoard);
  tally.records += Records(geom.m_pBoard->m_pRoutingKeepouts);
  Add(tally, *geom.m_pBoard->m_pPlacementOutline);
  for (const auto* pin : *geom.m_pPins) Add(tally, *pin);
  for (const auto* component : *geom.m_pComponents) {
    Add(tally, *component);
    tally.records += Records(component->m_pPlacementOutlines) + Records(component->m_pPinDefs);
    for (const auto* pin : *component->m_pPinDefs) {
      tally.characters += Length(pin->m_sName);
      tally.coordinates += pin->m_dX;
      tally.coordinates += pin->m_dY;
    }
    for (const auto* outline : *component->m_pPlacementOutlines) Add(tally, *outline->m_pCoords);
  }
  return tally;
}

Tally CountNeutral(const CMComps& components, const CMNetList& nets) {
  Tally tally;
  tally.records = Records(components.m_pPanels) + Records(nets.m_pNets) + Records(components.m_pInfos);
  for (const auto* net : *nets.m_pNets) {
    tally.records += Records(net->m_pPins);
    tally.characters += Length(net->m_sName);
    for (const auto* pin : *net->m_pPins) tally.characters += Length(pin->m_sRef) + Length(pin->m_sPin);
  }
  for (const auto* component : *components.m_pInfos) {
    tally.records += Records(component->m_pComments) + Records(component->m_pRefLocs);
    tally.characters += Length(component->m_Data.m_sValue1) + Length(component->m_Data.m_sValue4);
    tally.coordinates += component->m_Data.m_dValue5;
    tally.coordinates += component->m_Data.m_dValue6;
    for (const auto* comment : *component->m_pComments) tally.characters += Length(comment->m_sValue);
    for (const auto* location : *component->m_pRefLocs) {
      tally.characters += Length(location->m_sValue9);
      tally.coordinates += location->m_dValue1;
    }
  }
  return tally;
}

Tally CountTech(const CMTech& tech) {
  Tally tally;
  tally.records = Records(tech.m_pStackupArray) + Records(tech.m_pViaArray);
  for (const auto* layer : *tech.m_pStackupArray) {
    tally.coordinates += layer->m_nPhysicalLayerNumber;
    tally.characters += Length(layer->m_sPhysicalLayerName);
    for (const CString& name : layer->m_arrLogicalLayerNames) tally.characters += Length(name);
  }
  for (const auto* via : *tech.m_pViaArray) {
    tally.characters += Length(via->m_sArg1) + Length(via->m_sArg2) + Length(via->m_sArgLast);
  }
  return tally;
}

}  // namespace kestrin::bench
