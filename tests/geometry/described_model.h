#pragma once

#include <cstdio>
#include <string>

#include "kestrin/geometry/geometry_model.h"

namespace kestrin {  // where look-up by argument finds what describes a record

/// Describes a Geometry model as one text that names what is not as its constructor left it:
/// "board{name=B units=MM} pin{name=P type=2 draw=[CIRCLE{layer=TOP size=5}]}".
class Description {
 public:
  explicit Description(std::string kind) : text_(std::move(kind) + "{") {}

  Description& Add(const char* name, const CString& value, const char* usual = "") {
    return value == usual ? *this : Write(name, value.GetString());
  }
  Description& Add(const char* name, double value, double usual = 0.0) {
    return value == usual ? *this : Write(name, Number(value));
  }
  Description& Add(const char* name, const CStringArray& values) {
    return AddList(name, values, "|", [](const CString& value) { return std::string(value.View()); });
  }
  Description& Add(const char* name, const NumberArray& values) {
    return AddList(name, values, " ", [](double value) { return Number(value); });
  }
  template <class RECORD>
  Description& Add(const char* name, const CArray<RECORD*, RECORD*>& records) {
    return AddList(name, records, " ", [](const RECORD* record) { return Described(*record); });
  }
  std::string Text() const { return text_ + "}"; }

 private:
  static std::string Number(double value) {
    char text[32];
    std::snprintf(text, sizeof text, "%g", value);
    return text;
  }
  Description& Write(const char* name, const std::string& value) {
    text_ += std::string(text_.back() == '{' ? "" : " ") + name + "=" + value;
    return *this;
  }
  template <class LIST, class DESCRIBE>
  Description& AddList(const char* name, const LIST& list, const char* separator, DESCRIBE describe) {
    if (list.IsEmpty()) return *this;
    std::string values;
    for (const auto& value : list) values += (&value == list.GetData() ? "" : separator) + describe(value);
    return Write(name, "[" + values + "]");
  }

  std::string text_;
};

inline std::string Described(const CMGeomAdd& add) {
  return Description("add")
      .Add("0", add.m_sArg0)
      .Add("1", add.m_dArg1)
      .Add("2", add.m_dArg2)
      .Add("3", add.m_sArg3)
      .Add("4", add.m_nArg4)
      .Add("5", add.m_nArg5)
      .Add("6", add.m_nArg6)
      .Text();
}

inline std::string Described(const CMGeomText& text) {
  return Description("text")
      .Add("layer", text.m_sLayer)
      .Add("text", text.m_sText)
      .Add("x", text.m_dX)
      .Add("y", text.m_dY)
      .Add("size", text.m_dSize)
      .Add("just", text.m_sJustification)
      .Add("angle", text.m_dAngle)
      .Add("8", text.m_dValue8, 1.0)
      .Add("9", text.m_dValue9, 0.01)
      .Add("10", text.m_sValue10, "std")
      .Add("11", text.m_sValue11)
      .Add("12", text.m_dValue12)
      .Add("13", text.m_dValue13)
      .Add("mirror", text.m_sMirror)
      .Text();
}

inline std::string Described(const CMGeomDrawObj& drawObj) {
  Description text(drawObj.m_sType.GetString());
  if (const auto* path = dynamic_cast<const CMGeomPath*>(&drawObj)) {
    text.Add("layer", path->m_sLayer).Add("width", path->m_dWidth).Add("at", *path->m_pCoords);
  } else if (const auto* polygon = dynamic_cast<const CMGeomPolygon*>(&drawObj)) {
    text.Add("layer", polygon->m_sLayer).Add("at", *polygon->m_pCoords);
  } else if (const auto* arc = dynamic_cast<const CMGeomArc*>(&drawObj)) {
    text.Add("layer", arc->m_sLayer).Add("x1", arc->m_dX1).Add("y1", arc->m_dY1).Add("x2", arc->m_dX2);
    text.Add("y2", arc->m_dY2).Add("x3", arc->m_dX3).Add("y3", arc->m_dY3).Add("width", arc->m_dWidth);
    text.Add("mode", arc->m_nArcMode);
  } else if (const auto* circle = dynamic_cast<const CMGeomCircle*>(&drawObj)) {
    text.Add("layer", circle->m_sLayer).Add("x", circle->m_dX).Add("y", circle->m_dY);
    text.Add("size", circle->m_dSize).Add("width", circle->m_dWidth);
  }
  return text.Text();
}

/// A keep-out or a placement outline or region.
template <class AREA>
requires requires(const AREA& area) { area.m_sName, area.m_pCoords; }
std::string Described(const AREA& area) {
  return Description("").Add("name", area.m_sName).Add("at", *area.m_pCoords).Text();
}

inline std::string Described(const CMGeomDrill& drill) {
  return Description("").Add("size", drill.m_dSize).Add("x", drill.m_dX).Add("y", drill.m_dY).Text();
}

inline std::string Described(const CMGeomOverride& padstackOverride) {
  return Description("").Add("1", padstackOverride.m_sArg1).Add("2", padstackOverride.m_sArg2).Text();
}

inline std::string Described(const CMGeomPinDef& pin) {
  return Description("").Add("name", pin.m_sName).Add("x", pin.m_dX).Add("y", pin.m_dY).Text();
}

inline std::string Described(const CMGeomLayerDEF& layer) {
  return Description(layer.m_sDefinition.GetString()).Add("values", *layer.m_pValues).Text();
}

/// What geometries of all kinds have.
template <class RECORD>
Description Begun(const char* kind, const RECORD& record) {
  return Description(kind)
      .Add("name", record.m_sName)
      .Add("units", record.m_sUnits)
      .Add("draw", *record.m_pDrawObjs)
      .Add("texts", *record.m_pTexts)
      .Add("adds", *record.m_pAdds);
}

/// What geometries of several kinds have.
template <class RECORD>
void AddShared(Description& text, const RECORD& record) {
  if constexpr (requires { record.m_pBodyOutline; }) text.Add("body", *record.m_pBodyOutline);
  if constexpr (requires { record.m_pDrills; }) {
    text.Add("drills", *record.m_pDrills).Add("unplated", *record.m_pUnplatedDrills);
  }
  if constexpr (requires { record.m_pRoutingKeepouts; }) text.Add("noroute", *record.m_pRoutingKeepouts);
  if constexpr (requires { record.m_pTraceKeepouts; }) {
    text.Add("notrace", *record.m_pTraceKeepouts).Add("novia", *record.m_pViaKeepouts);
  }
}

inline std::string Described(const CMGeomBoard& board) {
  Description text = Begun("board", board);
  text.Add("layers", board.m_nRoutingLayers)
      .Add("padstack", board.m_sDefaultPadstack)
      .Add("via", board.m_sDefaultVia)
      .Add("clearance", board.m_dPlacementClearance)
      .Add("placement", *board.m_pPlacementOutline)
      .Add("routing", *board.m_pRoutingOutline)
      .Add("power", *board.m_pPowerNetNames)
      .Add("noplace", *board.m_pPlacementKeepouts)
      .Add("regions", *board.m_pPlacementRegions);
  AddShared(text, board);
  return text.Text();
}

inline std::string Described(const CMGeomComponent& component) {
  Description text = Begun("component", component);
  text.Add("height", component.m_dHeight)
      .Add("placements", *component.m_pPlacementOutlines)
      .Add("padstack", component.m_sDefaultPadstack)
      .Add("surface", component.m_sLayoutSurface, "both")
      .Add("layout", component.m_sLayoutType)
      .Add("overhang", component.m_bOutlineOverhang)
      .Add("overrides", *component.m_pPadstackOverrides)
      .Add("pins", *component.m_pPinDefs)
      .Add("type", component.m_sComponentType);
  AddShared(text, component);
  return text.Text();
}

inline std::string Described(const CMGeomGenericPart& part) {
  Description text = Begun("part", part);
  text.Add("placementname", part.m_pPlacementOutline->m_sName);
  text.Add("placement", *part.m_pPlacementOutline->m_pCoords);
  AddShared(text, part);
  return text.Text();
}

inline std::string Described(const CMGeomPanel& panel) {
  Description text = Begun("panel", panel);
  AddShared(text, panel);
  return text.Text();
}

inline std::string Described(const CMGeomDrawing& drawing) { return Begun("drawing", drawing).Text(); }

inline std::string Described(const CMGeomPin& pin) {
  return Begun("pin", pin).Add("type", pin.m_nTerminalType, 1).Add("drill", pin.m_dDrillSize).Text();
}

inline std::string Described(const CMGeomVia& via) {
  return Begun("via", via).Add("type", via.m_nViaType).Add("drill", via.m_dDrillSize).Text();
}

inline std::string Described(const CMGeomStackup& stackup) {
  return Description("stackup")
      .Add("name", stackup.m_sName)
      .Add("units", stackup.m_sUnits)
      .Add("layers", *stackup.m_pLayers)
      .Text();
}

/// The geometries with a blank between them; a board and a stack-up that nothing was read into are left out.
inline std::string Described(const CMGeom& geom) {
  std::string text;
  const auto add = [&](const std::string& described) { text += (text.empty() ? "" : " ") + described; };
  if (Described(*geom.m_pBoard) != "board{}") add(Described(*geom.m_pBoard));
  if (Described(*geom.m_pStackup) != "stackup{}") add(Described(*geom.m_pStackup));
  for (const auto* panel : *geom.m_pPanels) add(Described(*panel));
  for (const auto* component : *geom.m_pComponents) add(Described(*component));
  for (const auto* part : *geom.m_pGenericParts) add(Described(*part));
  for (const auto* pin : *geom.m_pPins) add(Described(*pin));
  for (const auto* via : *geom.m_pVias) add(Described(*via));
  for (const auto* drawing : *geom.m_pDrawings) add(Described(*drawing));
  return text;
}

}  // namespace kestrin
