#pragma once

/// @file
/// The fields of each record of a Geometry file, listed once: names and values, in the order of declaration.
/// Code that prints, compares or counts models visits these lists:
///
///     ForEachField(record, [&](const char* name, const auto& value) { … });
///
/// A field is a number, a CString, a record, or a pointer to a list or a record. Most members that no reader
/// fills are left out.

#include "kestrin/geometry/geometry_model.h"

namespace kestrin {

///@{
/// Calls field with the name and the value of each field of the record.
template <class Field>
void ForEachField(const CMGeomPath& record, Field field) {
  field("m_sType", record.m_sType);
  field("m_sLayer", record.m_sLayer);
  field("m_dWidth", record.m_dWidth);
  field("m_pCoords", record.m_pCoords);
}

template <class Field>
void ForEachField(const CMGeomPolygon& record, Field field) {
  field("m_sType", record.m_sType);
  field("m_sLayer", record.m_sLayer);
  field("m_pCoords", record.m_pCoords);
}

template <class Field>
void ForEachField(const CMGeomArc& record, Field field) {
  field("m_sType", record.m_sType);
  field("m_sLayer", record.m_sLayer);
  field("m_dX1", record.m_dX1);
  field("m_dY1", record.m_dY1);
  field("m_dX2", record.m_dX2);
  field("m_dY2", record.m_dY2);
  field("m_dX3", record.m_dX3);
  field("m_dY3", record.m_dY3);
  field("m_dWidth", record.m_dWidth);
  field("m_nArcMode", record.m_nArcMode);
}

template <class Field>
void ForEachField(const CMGeomCircle& record, Field field) {
  field("m_sType", record.m_sType);
  field("m_sLayer", record.m_sLayer);
  field("m_dX", record.m_dX);
  field("m_dY", record.m_dY);
  field("m_dSize", record.m_dSize);
  field("m_dWidth", record.m_dWidth);
}

template <class Field>
void ForEachField(const CMGeomDrawObj& record, Field field) {
  if (const auto* path = dynamic_cast<const CMGeomPath*>(&record)) return ForEachField(*path, field);
  if (const auto* polygon = dynamic_cast<const CMGeomPolygon*>(&record)) return ForEachField(*polygon, field);
  if (const auto* arc = dynamic_cast<const CMGeomArc*>(&record)) return ForEachField(*arc, field);
  if (const auto* circle = dynamic_cast<const CMGeomCircle*>(&record)) return ForEachField(*circle, field);
  field("m_sType", record.m_sType);
}

template <class Field>
void ForEachField(const CMGeomText& record, Field field) {
  field("m_sLayer", record.m_sLayer);
  field("m_sText", record.m_sText);
  field("m_dX", record.m_dX);
  field("m_dY", record.m_dY);
  field("m_dSize", record.m_dSize);
  field("m_sJustification", record.m_sJustification);
  field("m_dAngle", record.m_dAngle);
  field("m_dValue8", record.m_dValue8);
  field("m_dValue9", record.m_dValue9);
  field("m_sValue10", record.m_sValue10);
  field("m_sValue11", record.m_sValue11);
  field("m_dValue12", record.m_dValue12);
  field("m_dValue13", record.m_dValue13);
  field("m_sMirror", record.m_sMirror);
  field("m_sReading", record.m_sReading);
}

template <class Field>
void ForEachField(const CMGeomAdd& record, Field field) {
  field("m_sArg0", record.m_sArg0);
  field("m_dArg1", record.m_dArg1);
  field("m_dArg2", record.m_dArg2);
  field("m_sArg3", record.m_sArg3);
  field("m_nArg4", record.m_nArg4);
  field("m_nArg5", record.m_nArg5);
  field("m_nArg6", record.m_nArg6);
}

template <class Field>
void ForEachField(const CMGeomKeepout& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_pCoords", record.m_pCoords);
}

template <class Field>
void ForEachField(const CMGeomPlacementOutline& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_pCoords", record.m_pCoords);
}

template <class Field>
void ForEachField(const CMGeomPlacementRegion& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_pCoords", record.m_pCoords);
}

template <class Field>
void ForEachField(const CMGeomDrill& record, Field field) {
  field("m_dSize", record.m_dSize);
  field("m_dX", record.m_dX);
  field("m_dY", record.m_dY);
}

template <class Field>
void ForEachField(const CMGeomOverride& record, Field field) {
  field("m_sArg1", record.m_sArg1);
  field("m_sArg2", record.m_sArg2);
}

template <class Field>
void ForEachField(const CMGeomPinDef& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_dX", record.m_dX);
  field("m_dY", record.m_dY);
}

template <class Field>
void ForEachField(const CMGeomBoard& record, Field field) {
  field("m_nRoutingLayers", record.m_nRoutingLayers);
  field("m_sName", record.m_sName);
  field("m_sUnits", record.m_sUnits);
  field("m_pDrawObjs", record.m_pDrawObjs);
  field("m_pTexts", record.m_pTexts);
  field("m_pAdds", record.m_pAdds);
  field("m_sDefaultPadstack", record.m_sDefaultPadstack);
  field("m_sDefaultVia", record.m_sDefaultVia);
  field("m_dPlacementClearance", record.m_dPlacementClearance);
  field("m_pPlacementOutline", record.m_pPlacementOutline);
  field("m_pRoutingOutline", record.m_pRoutingOutline);
  field("m_pPowerNetNames", record.m_pPowerNetNames);
  field("m_pPlacementKeepouts", record.m_pPlacementKeepouts);
  field("m_pRoutingKeepouts", record.m_pRoutingKeepouts);
  field("m_pPlacementRegions", record.m_pPlacementRegions);
  field("m_pDrills", record.m_pDrills);
  field("m_pUnplatedDrills", record.m_pUnplatedDrills);
}

template <class Field>
void ForEachField(const CMGeomComponent& record, Field field) {
  field("m_pDrawObjs", record.m_pDrawObjs);
  field("m_sName", record.m_sName);
  field("m_sUnits", record.m_sUnits);
  field("m_pTexts", record.m_pTexts);
  field("m_pAdds", record.m_pAdds);
  field("m_dHeight", record.m_dHeight);
  field("m_pBodyOutline", record.m_pBodyOutline);
  field("m_pPlacementOutlines", record.m_pPlacementOutlines);
  field("m_sDefaultPadstack", record.m_sDefaultPadstack);
  field("m_sLayoutSurface", record.m_sLayoutSurface);
  field("m_sLayoutType", record.m_sLayoutType);
  field("m_bOutlineOverhang", record.m_bOutlineOverhang);
  field("m_pPadstackOverrides", record.m_pPadstackOverrides);
  field("m_pPinDefs", record.m_pPinDefs);
  field("m_sComponentType", record.m_sComponentType);
  field("m_pDrills", record.m_pDrills);
  field("m_pUnplatedDrills", record.m_pUnplatedDrills);
  field("m_pRoutingKeepouts", record.m_pRoutingKeepouts);
  field("m_pTraceKeepouts", record.m_pTraceKeepouts);
  field("m_pViaKeepouts", record.m_pViaKeepouts);
}

template <class Field>
void ForEachField(const CMGeomGenericPart& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_sUnits", record.m_sUnits);
  field("m_pDrawObjs", record.m_pDrawObjs);
  field("m_pPlacementOutline", record.m_pPlacementOutline);
  field("m_pTexts", record.m_pTexts);
  field("m_pBodyOutline", record.m_pBodyOutline);
  field("m_pUnplatedDrills", record.m_pUnplatedDrills);
  field("m_pDrills", record.m_pDrills);
  field("m_pRoutingKeepouts", record.m_pRoutingKeepouts);
  field("m_pTraceKeepouts", record.m_pTraceKeepouts);
  field("m_pViaKeepouts", record.m_pViaKeepouts);
  field("m_pAdds", record.m_pAdds);
}

template <class Field>
void ForEachField(const CMGeomDrawing& record, Field field) {
  field("m_pDrawObjs", record.m_pDrawObjs);
  field("m_sName", record.m_sName);
  field("m_sUnits", record.m_sUnits);
  field("m_pTexts", record.m_pTexts);
  field("m_pAdds", record.m_pAdds);
}

template <class Field>
void ForEachField(const CMGeomPin& record, Field field) {
  field("m_pDrawObjs", record.m_pDrawObjs);
  field("m_nTerminalType", record.m_nTerminalType);
  field("m_sName", record.m_sName);
  field("m_sUnits", record.m_sUnits);
  field("m_dDrillSize", record.m_dDrillSize);
  field("m_pTexts", record.m_pTexts);
  field("m_pAdds", record.m_pAdds);
}

template <class Field>
void ForEachField(const CMGeomVia& record, Field field) {
  field("m_nViaType", record.m_nViaType);
  field("m_sName", record.m_sName);
  field("m_sUnits", record.m_sUnits);
  field("m_dDrillSize", record.m_dDrillSize);
  field("m_pDrawObjs", record.m_pDrawObjs);
  field("m_pAdds", record.m_pAdds);
  field("m_pTexts", record.m_pTexts);
}

template <class Field>
void ForEachField(const CMGeomPanel& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_sUnits", record.m_sUnits);
  field("m_pDrawObjs", record.m_pDrawObjs);
  field("m_pAdds", record.m_pAdds);
  field("m_pTexts", record.m_pTexts);
  field("m_pDrills", record.m_pDrills);
  field("m_pUnplatedDrills", record.m_pUnplatedDrills);
}

template <class Field>
void ForEachField(const CMGeomLayerDEF& record, Field field) {
  field("m_pValues", record.m_pValues);
  field("m_sDefinition", record.m_sDefinition);
}

template <class Field>
void ForEachField(const CMGeomStackup& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_sUnits", record.m_sUnits);
  field("m_pLayers", record.m_pLayers);
}

template <class Field>
void ForEachField(const CMGeom& record, Field field) {
  field("m_pBoard", record.m_pBoard);
  field("m_pComponents", record.m_pComponents);
  field("m_pStackup", record.m_pStackup);
  field("m_pPins", record.m_pPins);
  field("m_pVias", record.m_pVias);
  field("m_pDrawings", record.m_pDrawings);
  field("m_pGenericParts", record.m_pGenericParts);
  field("m_pPanels", record.m_pPanels);
}
///@}

}  // namespace kestrin
