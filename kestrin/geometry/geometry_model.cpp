#include "kestrin/geometry/geometry_model.h"

namespace kestrin {

CMGeomPanel::~CMGeomPanel() = default;

CMGeomLayerDEF::CMGeomLayerDEF() = default;
CMGeomLayerDEF::CMGeomLayerDEF(const CMGeomLayerDEF&) = default;
CMGeomLayerDEF& CMGeomLayerDEF::operator=(const CMGeomLayerDEF&) = default;
CMGeomLayerDEF::~CMGeomLayerDEF() = default;

CMGeomStackup::CMGeomStackup() = default;
CMGeomStackup::CMGeomStackup(const CMGeomStackup&) = default;
CMGeomStackup& CMGeomStackup::operator=(const CMGeomStackup&) = default;
CMGeomStackup::~CMGeomStackup() = default;

CMGeom::CMGeom() = default;
CMGeom::CMGeom(const CMGeom&) = default;
CMGeom& CMGeom::operator=(const CMGeom&) = default;
CMGeom::~CMGeom() = default;

}  // namespace kestrin
