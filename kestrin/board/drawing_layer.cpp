#include "kestrin/board/drawing_layer.h"

#include "kestrin/board/names.h"
#include "kestrin/geometry/draw_objects.h"

namespace kestrin {

std::string_view LayerOf(const CMGeomDrawObj& object) {
  const std::string_view kind = object.m_sType.View();
  if (kind == "LINE") return ComparedName(static_cast<const CMGeomPath&>(object).m_sLayer.View());
  if (kind == "POLYGON") return ComparedName(static_cast<const CMGeomPolygon&>(object).m_sLayer.View());
  if (kind == "ARC") return ComparedName(static_cast<const CMGeomArc&>(object).m_sLayer.View());
  if (kind == "CIRCLE") return ComparedName(static_cast<const CMGeomCircle&>(object).m_sLayer.View());
  return {};
}

}  // namespace kestrin
