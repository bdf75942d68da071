#pragma once

/// @file
/// The records that the routed copper of a net consists of. A field is named after the value of its line that
/// it keeps: m_dValue5 is value 5, as a double, in the unit that the file names.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A SEG line of the last complete WIR, INC or ANT before it.
class KESTRIN_EXPORT CMTracesSEG : public PooledRecord {
 public:
  double m_dValue1 = 0.0;
  double m_dValue2 = 0.0;
  int m_nValue3 = 0;
  CString m_sValue4;  ///< empty when value 4 is made of decimal digits only
  CString m_sValue5;
  double m_dValue4 = -1.0;  ///< -1 unless value 4 is made of decimal digits only
};

/// A WIR line, or an ANT line with five values.
class KESTRIN_EXPORT CMTracesWIRANT : public PooledRecord, private OwnedLists<1> {
 public:
  int m_nValue1 = 0;
  double m_dValue2 = 0.0;
  double m_dValue3 = 0.0;
  double m_dValue4 = 0.0;
  double m_dValue5 = 0.0;
  RecordArray<CMTracesSEG>* m_pSegArray = MakeList();  ///< its SEG lines
};

/// An INC line (an incomplete connection), or an ANT line with seven values.
class KESTRIN_EXPORT CMTracesINCANT : public PooledRecord, private OwnedLists<1> {
 public:
  int m_nValue1 = 0;
  double m_dValue2 = 0.0;
  double m_dValue3 = 0.0;
  int m_nValue4 = 0;
  double m_dValue5 = 0.0;
  double m_dValue6 = 0.0;
  int m_nValue7 = 0;  ///< truncated toward zero when it is written with a fraction
  RecordArray<CMTracesSEG>* m_pSegArray = MakeList();  ///< its SEG lines
};

/// A GUI or a CHG line.
class KESTRIN_EXPORT CMTracesGUICHG : public PooledRecord {
 public:
  double m_dValue1 = 0.0;
  double m_dValue2 = 0.0;
  int m_nValue3 = 0;
  double m_dValue4 = 0.0;
  double m_dValue5 = 0.0;
  int m_nValue6 = 0;
};

/// A net header line and the records that follow it up to the next. Headers of the same name stay nets of
/// their own.
class KESTRIN_EXPORT CMTracesNET : public PooledRecord, private OwnedLists<6> {
 public:
  CString m_sName;                                           ///< without its quotes
  RecordArray<CMTracesWIRANT>* m_pWirArray = MakeList();     ///< WIR lines
  RecordArray<CMTracesINCANT>* m_pIncArray = MakeList();     ///< INC lines
  RecordArray<CMTracesWIRANT>* m_pAntWirArray = MakeList();  ///< ANT lines with five values
  RecordArray<CMTracesINCANT>* m_pAntIncArray = MakeList();  ///< ANT lines with seven values
  RecordArray<CMTracesGUICHG>* m_pGuiArray = MakeList();     ///< GUI lines
  RecordArray<CMTracesGUICHG>* m_pChgArray = MakeList();     ///< CHG lines
};

}  // namespace kestrin
