#pragma once

/// @file
/// The model of a Traces file: the routed copper of the nets, the copper fills, and board-wide records. Each
/// class is named after the keyword of its line. Lists are in file order. A record owns its lists, and they
/// own their records, so a record with lists cannot be copied.

#include <cstdint>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"
#include "kestrin/traces/fill_records.h"
#include "kestrin/traces/net_records.h"

namespace kestrin {

/// An XRF line.
class KESTRIN_EXPORT CMTracesXRF : public PooledRecord {
 public:
  int m_nValue1 = 0;   ///< value 1
  CString m_sValue2A;  ///< value 2
  CString m_sValue2B;  ///< value 2, too
  int m_nExtra = 0;
};

/// A TET line.
class KESTRIN_EXPORT CMTracesTET : public PooledRecord {
 public:
  ///@{
  /// Value N of the line, where N is the number in the name.
  int m_nValue1 = 0;
  CString m_sValue2;
  double m_dValue3 = 0.0;
  double m_dValue4 = 0.0;
  double m_dValue5 = 0.0;
  ///@}
};

/// A TTT line.
class KESTRIN_EXPORT CMTracesTTT : public PooledRecord {
 public:
  ///@{
  /// Value N of the line, where N is the number in the name.
  int m_nValue1 = 0;
  double m_dValue2 = 0.0;
  int m_nValue3 = 0;
  int m_nValue4 = 0;
  int m_nValue5 = 0;
  ///@}
};

/// The root of a Traces file.
///
///     for (const CMTracesNET* net : *traces->m_pNetArray) {
///       for (const CMTracesWIRANT* wire : *net->m_pWirArray) Route(net->m_sName, *wire->m_pSegArray);
///     }
class KESTRIN_TYPE CMTraces : private OwnedLists<5> {
 public:
  std::int64_t m_nReserved = 0;
  CString m_sUnits;  ///< the unit that the file names last

  ///@{
  /// A value of the last ST line with four values.
  double m_dStValue1 = 0.0;
  double m_dStValue2 = 0.0;
  int m_nStValue3 = 0;
  int m_nStValue4 = 0;
  ///@}

  ///@{
  /// A value of the last ST line with six or eight values.
  int m_nStLongValue1 = 0;
  int m_nStLongValue2 = 0;
  int m_nStLongValue3 = 0;
  int m_nStLongValue4 = 0;
  int m_nStLongValue5 = 0;
  int m_nStLongValue6 = 0;
  ///@}

  ///@{
  /// -1 if the file has an ST line with six or eight values, whatever those values are; else 0.
  int m_nStLongValue7 = 0;
  int m_nStLongValue8 = 0;
  ///@}

  RecordArray<CMTracesXRF>* m_pXrfArray = MakeList();  ///< the XRF lines
  RecordArray<CMTracesTET>* m_pTetArray = MakeList();  ///< the TET lines
  RecordArray<CMTracesTTT>* m_pTttArray = MakeList();  ///< the TTT lines
  RecordArray<CMTracesNET>* m_pNetArray = MakeList();  ///< the nets, with the lines that belong to them
  RecordArray<CMTracesFIL>* m_pFilArray = MakeList();  ///< the fills, with the lines that belong to them
};

}  // namespace kestrin
