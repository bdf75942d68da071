#pragma once

/// @file
/// The fields of each record of a Neutral file, listed once: names and values, in the order of declaration.
/// Code that prints, compares or counts models visits these lists:
///
///     ForEachField(record, [&](const char* name, const auto& value) { … });
///
/// A field is a number, a CString, a record, or a pointer to a list or a record. Most members that no reader
/// fills are left out.

#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"

namespace kestrin {

///@{
/// Calls field with the name and the value of each field of the record.
template <class Field>
void ForEachField(const tagMCOMPDATA& record, Field field) {
  field("m_sValue1", record.m_sValue1);
  field("m_sValue2", record.m_sValue2);
  field("m_sValue3", record.m_sValue3);
  field("m_sValue4", record.m_sValue4);
  field("m_dValue5", record.m_dValue5);
  field("m_dValue6", record.m_dValue6);
  field("m_nValue7", record.m_nValue7);
  field("m_nValue8", record.m_nValue8);
}

template <class Field>
void ForEachField(const CMCompsRefLoc& record, Field field) {
  field("m_dValue1", record.m_dValue1);
  field("m_dValue2", record.m_dValue2);
  field("m_nValue3", record.m_nValue3);
  field("m_sValue4", record.m_sValue4);
  field("m_dValue5", record.m_dValue5);
  field("m_dValue6", record.m_dValue6);
  field("m_dValue7", record.m_dValue7);
  field("m_sValue8", record.m_sValue8);
  field("m_sValue9", record.m_sValue9);
}

template <class Field>
void ForEachField(const tagMCOMPCOMMENT& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_sValue", record.m_sValue);
}

template <class Field>
void ForEachField(const CMCompsInfo& record, Field field) {
  field("m_Data", record.m_Data);
  field("m_sRefLocFirst", record.m_sRefLocFirst);
  field("m_pRefLocs", record.m_pRefLocs);
  field("m_pComments", record.m_pComments);
}

template <class Field>
void ForEachField(const CMCompsPanel& record, Field field) {
  field("m_sBoardName", record.m_sBoardName);
  field("m_nValue6", record.m_nValue6);
  field("m_nValue7", record.m_nValue7);
  field("m_nValue8", record.m_nValue8);
  field("m_dValue4", record.m_dValue4);
  field("m_dValue5", record.m_dValue5);
}

template <class Field>
void ForEachField(const CMComps& record, Field field) {
  field("m_sUnits", record.m_sUnits);
  field("m_nReadFlag", record.m_nReadFlag);
  field("m_dBoardValue3", record.m_dBoardValue3);
  field("m_dBoardValue4", record.m_dBoardValue4);
  field("m_pInfos", record.m_pInfos);
  field("m_pPanels", record.m_pPanels);
}

template <class Field>
void ForEachField(const CMRefPin& record, Field field) {
  field("m_sRef", record.m_sRef);
  field("m_sPin", record.m_sPin);
}

template <class Field>
void ForEachField(const CMNetProperty& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_sValue", record.m_sValue);
}

template <class Field>
void ForEachField(const CMNetInfo& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_pPins", record.m_pPins);
  field("m_pProperties", record.m_pProperties);
}

template <class Field>
void ForEachField(const CMNetList& record, Field field) {
  field("m_pNets", record.m_pNets);
}
///@}

}  // namespace kestrin
