#pragma once

/// @file
/// How all readers of a Traces file interpret certain values.

#include <algorithm>
#include <string_view>

#include "kestrin/base/characters.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {

/// Sets values 1 to 6 of an ST line with 6 or 8 values. Values 7 and 8 are always -1.
inline void SetLongStValues(CMTraces& traces, int value1, int value2, int value3, int value4, int value5,
                            int value6) {
  traces.m_nStLongValue1 = value1;
  traces.m_nStLongValue2 = value2;
  traces.m_nStLongValue3 = value3;
  traces.m_nStLongValue4 = value4;
  traces.m_nStLongValue5 = value5;
  traces.m_nStLongValue6 = value6;
  traces.m_nStLongValue7 = -1;
  traces.m_nStLongValue8 = -1;
}

inline void SetValue2(CMTracesXRF& record, std::string_view value) {
  record.m_sValue2A = value;
  record.m_sValue2B = value;
}

/// Sets the number if the value consists of decimal digits only, else the text.
inline void SetValue4(CMTracesSEG& record, std::string_view value, double number) {
  if (std::all_of(value.begin(), value.end(), IsDigit)) {
    record.m_dValue4 = number;
  } else {
    record.m_sValue4 = value;
  }
}

}  // namespace kestrin
