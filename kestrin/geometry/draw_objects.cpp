#include "kestrin/geometry/draw_objects.h"

namespace kestrin {

CMGeomDrawObj::~CMGeomDrawObj() = default;
CMGeomPath::~CMGeomPath() = default;
CMGeomPolygon::~CMGeomPolygon() = default;
CMGeomArc::~CMGeomArc() = default;
CMGeomCircle::~CMGeomCircle() = default;

}  // namespace kestrin
