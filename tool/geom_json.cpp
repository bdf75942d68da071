#include "tool/model_json.h"

namespace kestrin::tool {
namespace {

void WriteMembers(JsonObject& object, const CMGeomPath& path) {
  object.Member("m_sLayer", path.m_sLayer)
      .Member("m_dWidth", path.m_dWidth)
      .Member("m_pCoords", path.m_pCoords);
}

void WriteMembers(JsonObject& object, const CMGeomPolygon& polygon) {
  object.Member("m_sLayer", polygon.m_sLayer).Member("m_pCoords", polygon.m_pCoords);
}

void WriteMembers(JsonObject& object, const CMGeomArc& arc) {
  object.Member("m_sLayer", arc.m_sLayer)
      .Member("m_dX1", arc.m_dX1)
      .Member("m_dY1", arc.m_dY1)
      .Member("m_dX2", arc.m_dX2)
      .Member("m_dY2", arc.m_dY2)
      .Member("m_dX3", arc.m_dX3)
      .Member("m_dY3", arc.m_dY3)
      .Member("m_dWidth", arc.m_dWidth)
      .Member("m_nArcMode", arc.m_nArcMode);
}

void WriteMembers(JsonObject& object, const CMGeomCircle& circle) {
  object.Member("m_sLayer", circle.m_sLayer)
      .Member("m_dX", circle.m_dX)
      .Member("m_dY", circle.m_dY)
      .Member("m_dSize", circle.m_dSize)
      .Member("m_dWidth", circle.m_dWidth);
}

/// Writes the members of a drawing object if it is of that kind.
template <class KIND>
void WriteMembersOf(JsonObject& object, const CMGeomDrawObj& drawObj) {
  if (const auto* known = dynamic_cast<const KIND*>(&drawObj)) WriteMembers(object, *known);
}

}  // namespace

void WriteJson(JsonWriter& json, const CMGeomDrawObj& drawObj) {
  JsonObject object(json);
  object.Member("m_sType", drawObj.m_sType);
  WriteMembersOf<CMGeomPath>(object, drawObj);
  WriteMembersOf<CMGeomPolygon>(object, drawObj);
  WriteMembersOf<CMGeomArc>(object, drawObj);
  WriteMembersOf<CMGeomCircle>(object, drawObj);
}

void WriteJson(JsonWriter& json, const CMGeomText& text) {
  JsonObject(json)
      .Member("m_sLayer", text.m_sLayer)
      .Member("m_sText", text.m_sText)
      .Member("m_dX", text.m_dX)
      .Member("m_dY", text.m_dY)
      .Member("m_dSize", text.m_dSize)
      .Member("m_sJustification", text.m_sJustification)
      .Member("m_dAngle", text.m_dAngle)
      .Member("m_dValue8", text.m_dValue8)
      .Member("m_dValue9", text.m_dValue9)
      .Member("m_sValue10", text.m_sValue10)
      .Member("m_sValue11", text.m_sValue11)
      .Member("m_dValue12", text.m_dValue12)
      .Member("m_dValue13", text.m_dValue13)
      .Member("m_sMirror", text.m_sMirror)
      .Member("m_sReading", text.m_sReading);
}

void WriteJson(JsonWriter& json, const CMGeomAdd& add) {
  JsonObject(json)
      .Member("m_sArg0", add.m_sArg0)
      .Member("m_dArg1", add.m_dArg1)
      .Member("m_dArg2", add.m_dArg2)
      .Member("m_sArg3", add.m_sArg3)
      .Member("m_nArg4", add.m_nArg4)
      .Member("m_nArg5", add.m_nArg5)
      .Member("m_nArg6", add.m_nArg6);
}

void WriteJson(JsonWriter& json, const CMGeomKeepout& keepout) {
  JsonObject(json).Member("m_sName", keepout.m_sName).Member("m_pCoords", keepout.m_pCoords);
}

void WriteJson(JsonWriter& json, const CMGeomPlacementOutline& outline) {
  JsonObject(json).Member("m_sName", outline.m_sName).Member("m_pCoords", outline.m_pCoords);
}

void WriteJson(JsonWriter& json, const CMGeomPlacementRegion& region) {
  JsonObject(json).Member("m_sName", region.m_sName).Member("m_pCoords", region.m_pCoords);
}

void WriteJson(JsonWriter& json, const CMGeomDrill& drill) {
  JsonObject(json).Member("m_dSize", drill.m_dSize).Member("m_dX", drill.m_dX).Member("m_dY", drill.m_dY);
}

void WriteJson(JsonWriter& json, const CMGeomOverride& padstackOverride) {
  JsonObject(json).Member("m_sArg1", padstackOverride.m_sArg1).Member("m_sArg2", padstackOverride.m_sArg2);
}

void WriteJson(JsonWriter& json, const CMGeomPinDef& pin) {
  JsonObject(json).Member("m_sName", pin.m_sName).Member("m_dX", pin.m_dX).Member("m_dY", pin.m_dY);
}

void WriteJson(JsonWriter& json, const CMGeomBoard& board) {
  JsonObject(json)
      .Member("m_nRoutingLayers", board.m_nRoutingLayers)
      .Member("m_sName", board.m_sName)
      .Member("m_sUnits", board.m_sUnits)
      .Member("m_pDrawObjs", board.m_pDrawObjs)
      .Member("m_pTexts", board.m_pTexts)
      .Member("m_pAdds", board.m_pAdds)
      .Member("m_sDefaultPadstack", board.m_sDefaultPadstack)
      .Member("m_sDefaultVia", board.m_sDefaultVia)
      .Member("m_dPlacementClearance", board.m_dPlacementClearance)
      .Member("m_pPlacementOutline", board.m_pPlacementOutline)
      .Member("m_pRoutingOutline", board.m_pRoutingOutline)
      .Member("m_pPowerNetNames", board.m_pPowerNetNames)
      .Member("m_pPlacementKeepouts", board.m_pPlacementKeepouts)
      .Member("m_pRoutingKeepouts", board.m_pRoutingKeepouts)
      .Member("m_pPlacementRegions", board.m_pPlacementRegions)
      .Member("m_pDrills", board.m_pDrills)
      .Member("m_pUnplatedDrills", board.m_pUnplatedDrills);
}

void WriteJson(JsonWriter& json, const CMGeomComponent& component) {
  JsonObject(json)
      .Member("m_pDrawObjs", component.m_pDrawObjs)
      .Member("m_sName", component.m_sName)
      .Member("m_sUnits", component.m_sUnits)
      .Member("m_pTexts", component.m_pTexts)
      .Member("m_pAdds", component.m_pAdds)
      .Member("m_dHeight", component.m_dHeight)
      .Member("m_pBodyOutline", component.m_pBodyOutline)
      .Member("m_pPlacementOutlines", component.m_pPlacementOutlines)
      .Member("m_sDefaultPadstack", component.m_sDefaultPadstack)
      .Member("m_sLayoutSurface", component.m_sLayoutSurface)
      .Member("m_sLayoutType", component.m_sLayoutType)
      .Member("m_bOutlineOverhang", component.m_bOutlineOverhang)
      .Member("m_pPadstackOverrides", component.m_pPadstackOverrides)
      .Member("m_pPinDefs", component.m_pPinDefs)
      .Member("m_sComponentType", component.m_sComponentType)
      .Member("m_pDrills", component.m_pDrills)
      .Member("m_pUnplatedDrills", component.m_pUnplatedDrills)
      .Member("m_pRoutingKeepouts", component.m_pRoutingKeepouts)
      .Member("m_pTraceKeepouts", component.m_pTraceKeepouts)
      .Member("m_pViaKeepouts", component.m_pViaKeepouts);
}

void WriteJson(JsonWriter& json, const CMGeomGenericPart& part) {
  JsonObject(json)
      .Member("m_sName", part.m_sName)
      .Member("m_sUnits", part.m_sUnits)
      .Member("m_pDrawObjs", part.m_pDrawObjs)
      .Member("m_pPlacementOutline", part.m_pPlacementOutline)
      .Member("m_pTexts", part.m_pTexts)
      .Member("m_pBodyOutline", part.m_pBodyOutline)
      .Member("m_pUnplatedDrills", part.m_pUnplatedDrills)
      .Member("m_pDrills", part.m_pDrills)
      .Member("m_pRoutingKeepouts", part.m_pRoutingKeepouts)
      .Member("m_pTraceKeepouts", part.m_pTraceKeepouts)
      .Member("m_pViaKeepouts", part.m_pViaKeepouts)
      .Member("m_pAdds", part.m_pAdds);
}

void WriteJson(JsonWriter& json, const CMGeomDrawing& drawing) {
  JsonObject(json)
      .Member("m_pDrawObjs", drawing.m_pDrawObjs)
      .Member("m_sName", drawing.m_sName)
      .Member("m_sUnits", drawing.m_sUnits)
      .Member("m_pTexts", drawing.m_pTexts)
      .Member("m_pAdds", drawing.m_pAdds);
}

void WriteJson(JsonWriter& json, const CMGeomPin& pin) {
  JsonObject(json)
      .Member("m_pDrawObjs", pin.m_pDrawObjs)
      .Member("m_nTerminalType", pin.m_nTerminalType)
      .Member("m_sName", pin.m_sName)
      .Member("m_sUnits", pin.m_sUnits)
      .Member("m_dDrillSize", pin.m_dDrillSize)
      .Member("m_pTexts", pin.m_pTexts)
      .Member("m_pAdds", pin.m_pAdds);
}

void WriteJson(JsonWriter& json, const CMGeomVia& via) {
  JsonObject(json)
      .Member("m_nViaType", via.m_nViaType)
      .Member("m_sName", via.m_sName)
      .Member("m_sUnits", via.m_sUnits)
      .Member("m_dDrillSize", via.m_dDrillSize)
      .Member("m_pDrawObjs", via.m_pDrawObjs)
      .Member("m_pAdds", via.m_pAdds)
      .Member("m_pTexts", via.m_pTexts);
}

void WriteJson(JsonWriter& json, const CMGeomPanel& panel) {
  JsonObject(json)
      .Member("m_sName", panel.m_sName)
      .Member("m_sUnits", panel.m_sUnits)
      .Member("m_pDrawObjs", panel.m_pDrawObjs)
      .Member("m_pAdds", panel.m_pAdds)
      .Member("m_pTexts", panel.m_pTexts)
      .Member("m_pDrills", panel.m_pDrills)
      .Member("m_pUnplatedDrills", panel.m_pUnplatedDrills);
}

void WriteJson(JsonWriter& json, const CMGeomLayerDEF& layer) {
  JsonObject(json).Member("m_pValues", layer.m_pValues).Member("m_sDefinition", layer.m_sDefinition);
}

void WriteJson(JsonWriter& json, const CMGeomStackup& stackup) {
  JsonObject(json)
      .Member("m_sName", stackup.m_sName)
      .Member("m_sUnits", stackup.m_sUnits)
      .Member("m_pLayers", stackup.m_pLayers);
}

void WriteJson(JsonWriter& json, const CMGeom& geom) {
  JsonObject(json)
      .Member("m_pBoard", geom.m_pBoard)
      .Member("m_pComponents", geom.m_pComponents)
      .Member("m_pStackup", geom.m_pStackup)
      .Member("m_pPins", geom.m_pPins)
      .Member("m_pVias", geom.m_pVias)
      .Member("m_pDrawings", geom.m_pDrawings)
      .Member("m_pGenericParts", geom.m_pGenericParts)
      .Member("m_pPanels", geom.m_pPanels);
}

}  // namespace kestrin::tool
