#pragma once

#include <sstream>
#include <string>
#include <string_view>

#include "kestrin/traces/traces_model.h"

namespace kestrin::test {

/// Writes records as text that tests compare.
struct TracesText {
  static void PutField(std::ostream& out, const CString& text) { out << '[' << text << ']'; }
  static void PutField(std::ostream& out, double number) { out << number; }
  static void PutField(std::ostream& out, int number) { out << number; }

  /// A record as "CODE 1 2.5 [text]", its fields in the order given.
  template <class... FIELDS>
  static std::string Row(std::string_view code, const FIELDS&... fields) {
    std::ostringstream out;
    out << code;
    ((out << ' ', PutField(out, fields)), ...);
    return out.str();
  }

  /// A list as " name{first; second}", an empty one as nothing.
  template <class RECORD>
  static std::string List(std::string_view name, const RecordArray<RECORD>* records) {
    std::string text;
    for (const RECORD* record : *records) text += (text.empty() ? "" : "; ") + Of(*record);
    return text.empty() ? "" : " " + std::string(name) + "{" + text + "}";
  }

  static std::string Of(const CMTracesSEG& r) {
    return Row("SEG", r.m_dValue1, r.m_dValue2, r.m_nValue3, r.m_sValue4, r.m_sValue5, r.m_dValue4);
  }

  static std::string Of(const CMTracesWIRANT& r) {
    return Row("5", r.m_nValue1, r.m_dValue2, r.m_dValue3, r.m_dValue4, r.m_dValue5) +
           List("seg", r.m_pSegArray);
  }

  static std::string Of(const CMTracesINCANT& r) {
    return Row("7", r.m_nValue1, r.m_dValue2, r.m_dValue3, r.m_nValue4, r.m_dValue5, r.m_dValue6,
               r.m_nValue7) +
           List("seg", r.m_pSegArray);
  }

  static std::string Of(const CMTracesGUICHG& r) {
    return Row("6", r.m_dValue1, r.m_dValue2, r.m_nValue3, r.m_dValue4, r.m_dValue5, r.m_nValue6);
  }

  static std::string Of(const CMTracesNET& r) {
    return Row("NET", r.m_sName) + List("wir", r.m_pWirArray) + List("inc", r.m_pIncArray) +
           List("ant5", r.m_pAntWirArray) + List("ant7", r.m_pAntIncArray) + List("gui", r.m_pGuiArray) +
           List("chg", r.m_pChgArray);
  }

  static std::string Of(const CMTracesVER& r) { return Row("VER", r.m_dX, r.m_dY); }

  static std::string Of(const CMTracesTTI& r) {
    return Row("TTI", r.m_sName1, r.m_sName2, r.m_dValue1, r.m_dValue2, r.m_sValue3, r.m_nValue4, r.m_dValue5,
               r.m_dValue6, r.m_nValue7);
  }

  static std::string Of(const CMTracesArea& r) {
    return Row("AREA", r.m_sName1, r.m_sName2, r.m_sValue3, r.m_nValue4, r.m_dValue5, r.m_nValue6,
               r.m_nLastValue, r.m_nValue8, r.m_nValue9, r.m_dValue10, r.m_dValue11) +
           List("ver", r.m_pVerArray) + List("tti", r.m_pTtiArray);
  }

  static std::string Of(const CMTracesISL& r) { return Row("ISL", r.m_nValue1) + List("ver", r.m_pVerArray); }
  static std::string Of(const CMTracesISS& r) { return Row("ISS", r.m_nValue1) + List("ver", r.m_pVerArray); }

  static std::string Of(const CMTracesFIL& r) {
    return Row("FIL", r.m_sName1, r.m_sName2, r.m_sValue3, r.m_nValue4, r.m_nValue5, r.m_nValue6, r.m_nValue7,
               r.m_nValue8, r.m_dValue9, r.m_nValue10, r.m_nValue11, r.m_nValue12, r.m_sTail1, r.m_sTail2,
               r.m_sTail3, r.m_nExt1, r.m_nExt2, r.m_dExt3, r.m_dExt4) +
           List("ver", r.m_pVerArray) + List("are", r.m_pAreArray) + List("ars", r.m_pArsArray) +
           List("isl", r.m_pIslArray) + List("iss", r.m_pIssArray) + List("tti", r.m_pTtiArray);
  }

  static std::string Of(const CMTracesXRF& r) {
    return Row("XRF", r.m_nValue1, r.m_sValue2A, r.m_sValue2B, r.m_nExtra);
  }

  static std::string Of(const CMTracesTET& r) {
    return Row("TET", r.m_nValue1, r.m_sValue2, r.m_dValue3, r.m_dValue4, r.m_dValue5);
  }

  static std::string Of(const CMTracesTTT& r) {
    return Row("TTT", r.m_nValue1, r.m_dValue2, r.m_nValue3, r.m_nValue4, r.m_nValue5);
  }

  /// The whole model; header values only where they are set.
  static std::string Of(const CMTraces& r) {
    std::string text;
    if (!r.m_sUnits.IsEmpty()) text += Row(" UNITS", r.m_sUnits);
    if (r.m_dStValue1 != 0) text += Row(" ST", r.m_dStValue1, r.m_dStValue2, r.m_nStValue3, r.m_nStValue4);
    if (r.m_nStLongValue1 != 0) {
      text += Row(" STLONG", r.m_nStLongValue1, r.m_nStLongValue2, r.m_nStLongValue3, r.m_nStLongValue4,
                  r.m_nStLongValue5, r.m_nStLongValue6, r.m_nStLongValue7, r.m_nStLongValue8);
    }
    text += List("xrf", r.m_pXrfArray) + List("tet", r.m_pTetArray) + List("ttt", r.m_pTttArray) +
            List("net", r.m_pNetArray) + List("fil", r.m_pFilArray);
    return text.empty() ? text : text.substr(1);
  }
};

inline std::string Described(const CMTraces& traces) { return TracesText::Of(traces); }

}  // namespace kestrin::test
