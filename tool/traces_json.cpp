#include "tool/model_json.h"

namespace kestrin::tool {

void WriteJson(JsonWriter& json, const CMTracesSEG& segment) {
  JsonObject(json)
      .Member("m_dValue1", segment.m_dValue1)
      .Member("m_dValue2", segment.m_dValue2)
      .Member("m_nValue3", segment.m_nValue3)
      .Member("m_sValue4", segment.m_sValue4)
      .Member("m_sValue5", segment.m_sValue5)
      .Member("m_dValue4", segment.m_dValue4);
}

void WriteJson(JsonWriter& json, const CMTracesWIRANT& wire) {
  JsonObject(json)
      .Member("m_nValue1", wire.m_nValue1)
      .Member("m_dValue2", wire.m_dValue2)
      .Member("m_dValue3", wire.m_dValue3)
      .Member("m_dValue4", wire.m_dValue4)
      .Member("m_dValue5", wire.m_dValue5)
      .Member("m_pSegArray", wire.m_pSegArray);
}

void WriteJson(JsonWriter& json, const CMTracesINCANT& connection) {
  JsonObject(json)
      .Member("m_nValue1", connection.m_nValue1)
      .Member("m_dValue2", connection.m_dValue2)
      .Member("m_dValue3", connection.m_dValue3)
      .Member("m_nValue4", connection.m_nValue4)
      .Member("m_dValue5", connection.m_dValue5)
      .Member("m_dValue6", connection.m_dValue6)
      .Member("m_nValue7", connection.m_nValue7)
      .Member("m_pSegArray", connection.m_pSegArray);
}

void WriteJson(JsonWriter& json, const CMTracesGUICHG& record) {
  JsonObject(json)
      .Member("m_dValue1", record.m_dValue1)
      .Member("m_dValue2", record.m_dValue2)
      .Member("m_nValue3", record.m_nValue3)
      .Member("m_dValue4", record.m_dValue4)
      .Member("m_dValue5", record.m_dValue5)
      .Member("m_nValue6", record.m_nValue6);
}

void WriteJson(JsonWriter& json, const CMTracesNET& net) {
  JsonObject(json)
      .Member("m_sName", net.m_sName)
      .Member("m_pWirArray", net.m_pWirArray)
      .Member("m_pIncArray", net.m_pIncArray)
      .Member("m_pAntWirArray", net.m_pAntWirArray)
      .Member("m_pAntIncArray", net.m_pAntIncArray)
      .Member("m_pGuiArray", net.m_pGuiArray)
      .Member("m_pChgArray", net.m_pChgArray);
}

void WriteJson(JsonWriter& json, const CMTracesVER& vertex) {
  JsonObject(json).Member("m_dX", vertex.m_dX).Member("m_dY", vertex.m_dY);
}

void WriteJson(JsonWriter& json, const CMTracesTTI& record) {
  JsonObject(json)
      .Member("m_sName1", record.m_sName1)
      .Member("m_sName2", record.m_sName2)
      .Member("m_dValue1", record.m_dValue1)
      .Member("m_dValue2", record.m_dValue2)
      .Member("m_sValue3", record.m_sValue3)
      .Member("m_nValue4", record.m_nValue4)
      .Member("m_dValue5", record.m_dValue5)
      .Member("m_dValue6", record.m_dValue6)
      .Member("m_nValue7", record.m_nValue7);
}

void WriteJson(JsonWriter& json, const CMTracesArea& area) {
  JsonObject(json)
      .Member("m_sName1", area.m_sName1)
      .Member("m_sName2", area.m_sName2)
      .Member("m_sValue3", area.m_sValue3)
      .Member("m_nValue4", area.m_nValue4)
      .Member("m_dValue5", area.m_dValue5)
      .Member("m_nValue6", area.m_nValue6)
      .Member("m_nLastValue", area.m_nLastValue)
      .Member("m_nValue8", area.m_nValue8)
      .Member("m_nValue9", area.m_nValue9)
      .Member("m_dValue10", area.m_dValue10)
      .Member("m_dValue11", area.m_dValue11)
      .Member("m_pVerArray", area.m_pVerArray)
      .Member("m_pTtiArray", area.m_pTtiArray);
}

void WriteJson(JsonWriter& json, const CMTracesISL& island) {
  JsonObject(json).Member("m_nValue1", island.m_nValue1).Member("m_pVerArray", island.m_pVerArray);
}

void WriteJson(JsonWriter& json, const CMTracesISS& island) {
  JsonObject(json).Member("m_nValue1", island.m_nValue1).Member("m_pVerArray", island.m_pVerArray);
}

void WriteJson(JsonWriter& json, const CMTracesFIL& fill) {
  JsonObject(json)
      .Member("m_sName1", fill.m_sName1)
      .Member("m_sName2", fill.m_sName2)
      .Member("m_sValue3", fill.m_sValue3)
      .Member("m_nValue4", fill.m_nValue4)
      .Member("m_nValue5", fill.m_nValue5)
      .Member("m_nValue6", fill.m_nValue6)
      .Member("m_nValue7", fill.m_nValue7)
      .Member("m_nValue8", fill.m_nValue8)
      .Member("m_dValue9", fill.m_dValue9)
      .Member("m_nValue10", fill.m_nValue10)
      .Member("m_nValue11", fill.m_nValue11)
      .Member("m_nValue12", fill.m_nValue12)
      .Member("m_sTail1", fill.m_sTail1)
      .Member("m_sTail2", fill.m_sTail2)
      .Member("m_sTail3", fill.m_sTail3)
      .Member("m_nExt1", fill.m_nExt1)
      .Member("m_nExt2", fill.m_nExt2)
      .Member("m_dExt3", fill.m_dExt3)
      .Member("m_dExt4", fill.m_dExt4)
      .Member("m_pVerArray", fill.m_pVerArray)
      .Member("m_pAreArray", fill.m_pAreArray)
      .Member("m_pArsArray", fill.m_pArsArray)
      .Member("m_pIslArray", fill.m_pIslArray)
      .Member("m_pIssArray", fill.m_pIssArray)
      .Member("m_pTtiArray", fill.m_pTtiArray);
}

void WriteJson(JsonWriter& json, const CMTracesXRF& record) {
  JsonObject(json)
      .Member("m_nValue1", record.m_nValue1)
      .Member("m_sValue2A", record.m_sValue2A)
      .Member("m_sValue2B", record.m_sValue2B)
      .Member("m_nExtra", record.m_nExtra);
}

void WriteJson(JsonWriter& json, const CMTracesTET& record) {
  JsonObject(json)
      .Member("m_nValue1", record.m_nValue1)
      .Member("m_sValue2", record.m_sValue2)
      .Member("m_dValue3", record.m_dValue3)
      .Member("m_dValue4", record.m_dValue4)
      .Member("m_dValue5", record.m_dValue5);
}

void WriteJson(JsonWriter& json, const CMTracesTTT& record) {
  JsonObject(json)
      .Member("m_nValue1", record.m_nValue1)
      .Member("m_dValue2", record.m_dValue2)
      .Member("m_nValue3", record.m_nValue3)
      .Member("m_nValue4", record.m_nValue4)
      .Member("m_nValue5", record.m_nValue5);
}

void WriteJson(JsonWriter& json, const CMTraces& traces) {
  JsonObject(json)
      .Member("m_sUnits", traces.m_sUnits)
      .Member("m_dStValue1", traces.m_dStValue1)
      .Member("m_dStValue2", traces.m_dStValue2)
      .Member("m_nStValue3", traces.m_nStValue3)
      .Member("m_nStValue4", traces.m_nStValue4)
      .Member("m_nStLongValue1", traces.m_nStLongValue1)
      .Member("m_nStLongValue2", traces.m_nStLongValue2)
      .Member("m_nStLongValue3", traces.m_nStLongValue3)
      .Member("m_nStLongValue4", traces.m_nStLongValue4)
      .Member("m_nStLongValue5", traces.m_nStLongValue5)
      .Member("m_nStLongValue6", traces.m_nStLongValue6)
      .Member("m_nStLongValue7", traces.m_nStLongValue7)
      .Member("m_nStLongValue8", traces.m_nStLongValue8)
      .Member("m_pXrfArray", traces.m_pXrfArray)
      .Member("m_pTetArray", traces.m_pTetArray)
      .Member("m_pTttArray", traces.m_pTttArray)
      .Member("m_pNetArray", traces.m_pNetArray)
      .Member("m_pFilArray", traces.m_pFilArray);
}

}  // namespace kestrin::tool
