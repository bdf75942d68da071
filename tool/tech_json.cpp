#include "tool/model_json.h"

namespace kestrin::tool {

void WriteJson(JsonWriter& json, const CMTechPin& /*pin*/) { JsonObject{json}; }

void WriteJson(JsonWriter& json, const CMTechStackUpOrder& layer) {
  JsonObject(json)
      .Member("m_arrLogicalLayerNames", layer.m_arrLogicalLayerNames)
      .Member("m_sPhysicalLayerName", layer.m_sPhysicalLayerName)
      .Member("m_nPhysicalLayerNumber", layer.m_nPhysicalLayerNumber);
}

void WriteJson(JsonWriter& json, const CMTechVia& via) {
  JsonObject(json)
      .Member("m_sArg2", via.m_sArg2)
      .Member("m_sArgLast", via.m_sArgLast)
      .Member("m_sArg1", via.m_sArg1);
}

void WriteJson(JsonWriter& json, const CMTech& tech) {
  JsonObject(json)
      .Member("m_pPinArray", tech.m_pPinArray)
      .Member("m_pStackupArray", tech.m_pStackupArray)
      .Member("m_pViaArray", tech.m_pViaArray);
}

}  // namespace kestrin::tool
