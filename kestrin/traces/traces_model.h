#pragma once

/// @file
/// What a Traces file says: the routed copper of every net, the copper fills, and a few board-wide records.
/// Lists are in file order. A record class is named after the code of the line that makes it; every record
/// owns its lists and they their records, so that a record with lists cannot be copied.

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
  int m_nValue1 = 0;
  CString m_sValue2A;  ///< value 2
  CString m_sValue2B;  ///< value 2 as well
  int m_nExtra = 0;    ///< not set by any reader
};

/// A TET line.
class KESTRIN_EXPORT CMTracesTET : public PooledRecord {
 public:
  int m_nValue1 = 0;
  CString m_sValue2;
  double m_dValue3 = 0.0;
  double m_dValue4 = 0.0;
  double m_dValue5 = 0.0;
};

/// A TTT line.
class KESTRIN_EXPORT CMTracesTTT : public PooledRecord {
 public:
  int m_nValue1 = 0;
  double m_dValue2 = 0.0;
  int m_nValue3 = 0;
  int m_nValue4 = 0;
  int m_nValue5 = 0;
};

/// The root of a Traces file.
class KESTRIN_EXPORT CMTraces : private OwnedLists<5> {
 public:
  std::int64_t m_nReserved = 0;  ///< means nothing
  CString m_sUnits;              ///< the unit that the file names last

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

  int m_nStLongValue7 = 0;  ///< -1 once such a line was read
  int m_nStLongValue8 = 0;  ///< -1 once such a line was read

  RecordArray<CMTracesXRF>* m_pXrfArray = MakeList();  ///< XRF lines
  RecordArray<CMTracesTET>* m_pTetArray = MakeList();  ///< TET lines
  RecordArray<CMTracesTTT>* m_pTttArray = MakeList();  ///< TTT lines
  RecordArray<CMTracesNET>* m_pNetArray = MakeList();  ///< net headers, with what belongs to them
  RecordArray<CMTracesFIL>* m_pFilArray = MakeList();  ///< fills, with what belongs to them
};

}  // namespace kestrin
