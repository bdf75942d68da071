#pragma once

/// @file
/// The fields of each record of a Tech file, listed once: names and values, in the order of declaration. Code
/// that prints, compares or counts models visits these lists:
///
///     ForEachField(record, [&](const char* name, const auto& value) { … });
///
/// A field is a number, a CString, a record, or a pointer to a list or a record. Most members that no reader
/// fills are left out.

#include "kestrin/tech/tech_model.h"

namespace kestrin {

///@{
/// Calls field with the name and the value of each field of the record.
template <class Field>
void ForEachField(const CMTechPin& /*record*/, Field /*field*/) {}

template <class Field>
void ForEachField(const CMTechStackUpOrder& record, Field field) {
  field("m_arrLogicalLayerNames", record.m_arrLogicalLayerNames);
  field("m_sPhysicalLayerName", record.m_sPhysicalLayerName);
  field("m_nPhysicalLayerNumber", record.m_nPhysicalLayerNumber);
}

template <class Field>
void ForEachField(const CMTechVia& record, Field field) {
  field("m_sArg2", record.m_sArg2);
  field("m_sArgLast", record.m_sArgLast);
  field("m_sArg1", record.m_sArg1);
}

template <class Field>
void ForEachField(const CMTech& record, Field field) {
  field("m_pPinArray", record.m_pPinArray);
  field("m_pStackupArray", record.m_pStackupArray);
  field("m_pViaArray", record.m_pViaArray);
}
///@}

}  // namespace kestrin
