#include "tool/model_json.h"

namespace kestrin::tool {

void WriteJson(JsonWriter& json, const tagMCOMPDATA& data) {
  JsonObject(json)
      .Member("m_sValue1", data.m_sValue1)
      .Member("m_sValue2", data.m_sValue2)
      .Member("m_sValue3", data.m_sValue3)
      .Member("m_sValue4", data.m_sValue4)
      .Member("m_dValue5", data.m_dValue5)
      .Member("m_dValue6", data.m_dValue6)
      .Member("m_nValue7", data.m_nValue7)
      .Member("m_nValue8", data.m_nValue8);
}

void WriteJson(JsonWriter& json, const CMCompsRefLoc& group) {
  JsonObject(json)
      .Member("m_dValue1", group.m_dValue1)
      .Member("m_dValue2", group.m_dValue2)
      .Member("m_nValue3", group.m_nValue3)
      .Member("m_sValue4", group.m_sValue4)
      .Member("m_dValue5", group.m_dValue5)
      .Member("m_dValue6", group.m_dValue6)
      .Member("m_dValue7", group.m_dValue7)
      .Member("m_sValue8", group.m_sValue8)
      .Member("m_sValue9", group.m_sValue9);
}

void WriteJson(JsonWriter& json, const tagMCOMPCOMMENT& comment) {
  JsonObject(json).Member("m_sName", comment.m_sName).Member("m_sValue", comment.m_sValue);
}

void WriteJson(JsonWriter& json, const CMCompsInfo& component) {
  JsonObject(json)
      .Member("m_Data", component.m_Data)
      .Member("m_sRefLocFirst", component.m_sRefLocFirst)
      .Member("m_pRefLocs", component.m_pRefLocs)
      .Member("m_pComments", component.m_pComments);
}

void WriteJson(JsonWriter& json, const CMCompsPanel& panel) {
  JsonObject(json)
      .Member("m_sBoardName", panel.m_sBoardName)
      .Member("m_nValue6", panel.m_nValue6)
      .Member("m_nValue7", panel.m_nValue7)
      .Member("m_nValue8", panel.m_nValue8)
      .Member("m_dValue4", panel.m_dValue4)
      .Member("m_dValue5", panel.m_dValue5);
}

void WriteJson(JsonWriter& json, const CMComps& components) {
  JsonObject(json)
      .Member("m_sUnits", components.m_sUnits)
      .Member("m_nReadFlag", components.m_nReadFlag)
      .Member("m_dBoardValue3", components.m_dBoardValue3)
      .Member("m_dBoardValue4", components.m_dBoardValue4)
      .Member("m_pInfos", components.m_pInfos)
      .Member("m_pPanels", components.m_pPanels);
}

void WriteJson(JsonWriter& json, const CMRefPin& pin) {
  JsonObject(json).Member("m_sRef", pin.m_sRef).Member("m_sPin", pin.m_sPin);
}

void WriteJson(JsonWriter& json, const CMNetProperty& property) {
  JsonObject(json).Member("m_sName", property.m_sName).Member("m_sValue", property.m_sValue);
}

void WriteJson(JsonWriter& json, const CMNetInfo& net) {
  JsonObject(json)
      .Member("m_sName", net.m_sName)
      .Member("m_pPins", net.m_pPins)
      .Member("m_pProperties", net.m_pProperties);
}

void WriteJson(JsonWriter& json, const CMNetList& nets) { JsonObject(json).Member("m_pNets", nets.m_pNets); }

}  // namespace kestrin::tool
