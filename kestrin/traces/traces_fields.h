#pragma once

/// @file
/// The fields of each record of a Traces file, listed once: names and values, in the order of declaration.
/// Code that prints, compares or counts models visits these lists:
///
///     ForEachField(record, [&](const char* name, const auto& value) { … });
///
/// A field is a number, a CString, a record, or a pointer to a list or a record. Most members that no reader
/// fills are left out.

#include "kestrin/traces/traces_model.h"

namespace kestrin {

///@{
/// Calls field with the name and the value of each field of the record.
template <class Field>
void ForEachField(const CMTracesSEG& record, Field field) {
  field("m_dValue1", record.m_dValue1);
  field("m_dValue2", record.m_dValue2);
  field("m_nValue3", record.m_nValue3);
  field("m_sValue4", record.m_sValue4);
  field("m_sValue5", record.m_sValue5);
  field("m_dValue4", record.m_dValue4);
}

template <class Field>
void ForEachField(const CMTracesWIRANT& record, Field field) {
  field("m_nValue1", record.m_nValue1);
  field("m_dValue2", record.m_dValue2);
  field("m_dValue3", record.m_dValue3);
  field("m_dValue4", record.m_dValue4);
  field("m_dValue5", record.m_dValue5);
  field("m_pSegArray", record.m_pSegArray);
}

template <class Field>
void ForEachField(const CMTracesINCANT& record, Field field) {
  field("m_nValue1", record.m_nValue1);
  field("m_dValue2", record.m_dValue2);
  field("m_dValue3", record.m_dValue3);
  field("m_nValue4", record.m_nValue4);
  field("m_dValue5", record.m_dValue5);
  field("m_dValue6", record.m_dValue6);
  field("m_nValue7", record.m_nValue7);
  field("m_pSegArray", record.m_pSegArray);
}

template <class Field>
void ForEachField(const CMTracesGUICHG& record, Field field) {
  field("m_dValue1", record.m_dValue1);
  field("m_dValue2", record.m_dValue2);
  field("m_nValue3", record.m_nValue3);
  field("m_dValue4", record.m_dValue4);
  field("m_dValue5", record.m_dValue5);
  field("m_nValue6", record.m_nValue6);
}

template <class Field>
void ForEachField(const CMTracesNET& record, Field field) {
  field("m_sName", record.m_sName);
  field("m_pWirArray", record.m_pWirArray);
  field("m_pIncArray", record.m_pIncArray);
  field("m_pAntWirArray", record.m_pAntWirArray);
  field("m_pAntIncArray", record.m_pAntIncArray);
  field("m_pGuiArray", record.m_pGuiArray);
  field("m_pChgArray", record.m_pChgArray);
}

template <class Field>
void ForEachField(const CMTracesVER& record, Field field) {
  field("m_dX", record.m_dX);
  field("m_dY", record.m_dY);
}

template <class Field>
void ForEachField(const CMTracesTTI& record, Field field) {
  field("m_sName1", record.m_sName1);
  field("m_sName2", record.m_sName2);
  field("m_dValue1", record.m_dValue1);
  field("m_dValue2", record.m_dValue2);
  field("m_sValue3", record.m_sValue3);
  field("m_nValue4", record.m_nValue4);
  field("m_dValue5", record.m_dValue5);
  field("m_dValue6", record.m_dValue6);
  field("m_nValue7", record.m_nValue7);
}

template <class Field>
void ForEachField(const CMTracesArea& record, Field field) {
  field("m_sName1", record.m_sName1);
  field("m_sName2", record.m_sName2);
  field("m_sValue3", record.m_sValue3);
  field("m_nValue4", record.m_nValue4);
  field("m_dValue5", record.m_dValue5);
  field("m_nValue6", record.m_nValue6);
  field("m_nLastValue", record.m_nLastValue);
  field("m_nValue8", record.m_nValue8);
  field("m_nValue9", record.m_nValue9);
  field("m_dValue10", record.m_dValue10);
  field("m_dValue11", record.m_dValue11);
  field("m_pVerArray", record.m_pVerArray);
  field("m_pTtiArray", record.m_pTtiArray);
}

template <class Field>
void ForEachField(const CMTracesISL& record, Field field) {
  field("m_nValue1", record.m_nValue1);
  field("m_pVerArray", record.m_pVerArray);
}

template <class Field>
void ForEachField(const CMTracesISS& record, Field field) {
  field("m_nValue1", record.m_nValue1);
  field("m_pVerArray", record.m_pVerArray);
}

template <class Field>
void ForEachField(const CMTracesFIL& record, Field field) {
  field("m_sName1", record.m_sName1);
  field("m_sName2", record.m_sName2);
  field("m_sValue3", record.m_sValue3);
  field("m_nValue4", record.m_nValue4);
  field("m_nValue5", record.m_nValue5);
  field("m_nValue6", record.m_nValue6);
  field("m_nValue7", record.m_nValue7);
  field("m_nValue8", record.m_nValue8);
  field("m_dValue9", record.m_dValue9);
  field("m_nValue10", record.m_nValue10);
  field("m_nValue11", record.m_nValue11);
  field("m_nValue12", record.m_nValue12);
  field("m_sTail1", record.m_sTail1);
  field("m_sTail2", record.m_sTail2);
  field("m_sTail3", record.m_sTail3);
  field("m_nExt1", record.m_nExt1);
  field("m_nExt2", record.m_nExt2);
  field("m_dExt3", record.m_dExt3);
  field("m_dExt4", record.m_dExt4);
  field("m_pVerArray", record.m_pVerArray);
  field("m_pAreArray", record.m_pAreArray);
  field("m_pArsArray", record.m_pArsArray);
  field("m_pIslArray", record.m_pIslArray);
  field("m_pIssArray", record.m_pIssArray);
  field("m_pTtiArray", record.m_pTtiArray);
}

template <class Field>
void ForEachField(const CMTracesXRF& record, Field field) {
  field("m_nValue1", record.m_nValue1);
  field("m_sValue2A", record.m_sValue2A);
  field("m_sValue2B", record.m_sValue2B);
  field("m_nExtra", record.m_nExtra);
}

template <class Field>
void ForEachField(const CMTracesTET& record, Field field) {
  field("m_nValue1", record.m_nValue1);
  field("m_sValue2", record.m_sValue2);
  field("m_dValue3", record.m_dValue3);
  field("m_dValue4", record.m_dValue4);
  field("m_dValue5", record.m_dValue5);
}

template <class Field>
void ForEachField(const CMTracesTTT& record, Field field) {
  field("m_nValue1", record.m_nValue1);
  field("m_dValue2", record.m_dValue2);
  field("m_nValue3", record.m_nValue3);
  field("m_nValue4", record.m_nValue4);
  field("m_nValue5", record.m_nValue5);
}

template <class Field>
void ForEachField(const CMTraces& record, Field field) {
  field("m_sUnits", record.m_sUnits);
  field("m_dStValue1", record.m_dStValue1);
  field("m_dStValue2", record.m_dStValue2);
  field("m_nStValue3", record.m_nStValue3);
  field("m_nStValue4", record.m_nStValue4);
  field("m_nStLongValue1", record.m_nStLongValue1);
  field("m_nStLongValue2", record.m_nStLongValue2);
  field("m_nStLongValue3", record.m_nStLongValue3);
  field("m_nStLongValue4", record.m_nStLongValue4);
  field("m_nStLongValue5", record.m_nStLongValue5);
  field("m_nStLongValue6", record.m_nStLongValue6);
  field("m_nStLongValue7", record.m_nStLongValue7);
  field("m_nStLongValue8", record.m_nStLongValue8);
  field("m_pXrfArray", record.m_pXrfArray);
  field("m_pTetArray", record.m_pTetArray);
  field("m_pTttArray", record.m_pTttArray);
  field("m_pNetArray", record.m_pNetArray);
  field("m_pFilArray", record.m_pFilArray);
}
///@}

}  // namespace kestrin
