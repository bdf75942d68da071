#include "kestrin/geom/geom_model.h"

namespace kestrin {

CMGeomPanel::~CMGeomPanel() = default;

CMGeomLayerDEF::CMGeomLayerDEF() : m_pValues(decltype(m_pValues)::Make()) {}
CMGeomLayerDEF::CMGeomLayerDEF(const CMGeomLayerDEF&) = default;
CMGeomLayerDEF& CMGeomLayerDEF::operator=(const CMGeomLayerDEF&) = default;
CMGeomLayerDEF::~CMGeomLayerDEF() = default;

CMGeomStackup::CMGeomStackup() : m_pLayers(decltype(m_pLayers)::Make()) {}
CMGeomStackup::CMGeomStackup(const CMGeomStackup&) = default;
CMGeomStackup& CMGeomStackup::operator=(const CMGeomStackup&) = default;
CMGeomStackup::~CMGeomStackup() = default;

CMGeom::CMGeom()
    : m_pBoard(decltype(m_pBoard)::Make()),
      m_pComponents(decltype(m_pComponents)::Make()),
      m_pStackup(decltype(m_pStackup)::Make()),
      m_pPins(decltype(m_pPins)::Make()),
      m_pVias(decltype(m_pVias)::Make()),
      m_pDrawings(decltype(m_pDrawings)::Make()),
      m_pGenericParts(decltype(m_pGenericParts)::Make()),
      m_pPanels(decltype(m_pPanels)::Make()) {}

CMGeom::CMGeom(const CMGeom&) = default;
CMGeom& CMGeom::operator=(const CMGeom&) = default;

CMGeom::~CMGeom() {
  m_pBoard = nullptr;
  m_pStackup = nullptr;
  m_pPanels = nullptr;
  m_pComponents = nullptr;
  m_pPins = nullptr;
  m_pVias = nullptr;
  m_pDrawings = nullptr;
  m_pGenericParts = nullptr;
}

}  // namespace kestrin
