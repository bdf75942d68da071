#include "kestrin/tech/tech_model.h"

#include <algorithm>

namespace kestrin {
namespace {

/// Null if no layer has the name, or if a host has set the pointer to the list to null.
const CMTechStackUpOrder* FindLayer(const CMTechStackupArray* layers, const CString& name) {
  if (layers == nullptr) return nullptr;
  const auto* found = std::find_if(layers->begin(), layers->end(), [&](const CMTechStackUpOrder* layer) {
    return layer != nullptr && layer->m_sPhysicalLayerName == name;
  });
  return found == layers->end() ? nullptr : *found;
}

}  // namespace

CMTechPin::~CMTechPin() = default;
CMTechStackUpOrder::~CMTechStackUpOrder() = default;
CMTechVia::~CMTechVia() = default;

CMTech::CMTech() = default;
CMTech::CMTech(const CMTech&) = default;
CMTech& CMTech::operator=(const CMTech&) = default;
CMTech::~CMTech() = default;

int CMTech::GetPhysicalLayerNumber(CString physicalLayerName) const {
  const CMTechStackUpOrder* layer = FindLayer(m_pStackupArray, physicalLayerName);
  return layer == nullptr ? 0 : layer->m_nPhysicalLayerNumber;
}

void CMTech::GetLogicalLayerNamesForPhysicalLayerName(CString physicalLayerName, CStringArray& names) const {
  const CMTechStackUpOrder* layer = FindLayer(m_pStackupArray, physicalLayerName);
  if (layer != nullptr) names.Copy(layer->m_arrLogicalLayerNames);
}

}  // namespace kestrin
