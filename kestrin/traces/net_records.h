#pragma once

/// @file
/// The records of a net's routed copper. A field is named after a value of its line: m_dValue5 is value 5, as
/// a double. Lengths are in the unit of the file, CMTraces::m_sUnits.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A SEG line: a segment of a WIR, INC or ANT line.
class KESTRIN_EXPORT CMTracesSEG : public PooledRecord {
 public:
  double m_dValue1 = 0.0;   ///< value 1
  double m_dValue2 = 0.0;   ///< value 2
  int m_nValue3 = 0;        ///< value 3
  CString m_sValue4;        ///< value 4; empty if it consists of decimal digits only
  CString m_sValue5;        ///< value 5
  double m_dValue4 = -1.0;  ///< value 4; -1 unless it consists of decimal digits only
};

/// A WIR line (a wire), or an ANT line with five values.
class KESTRIN_TYPE CMTracesWIRANT : public PooledRecord, private OwnedLists<1> {
 public:
  ///@{
  /// Value N of the line, where N is the number in the name.
  int m_nValue1 = 0;
  double m_dValue2 = 0.0;
  double m_dValue3 = 0.0;
  double m_dValue4 = 0.0;
  double m_dValue5 = 0.0;
  ///@}
  RecordArray<CMTracesSEG>* m_pSegArray = MakeList();  ///< its SEG lines
};

/// An INC line (an incomplete connection), or an ANT line with seven values.
class KESTRIN_TYPE CMTracesINCANT : public PooledRecord, private OwnedLists<1> {
 public:
  ///@{
  /// Value N of the line, where N is the number in the name.
  int m_nValue1 = 0;
  double m_dValue2 = 0.0;
  double m_dValue3 = 0.0;
  int m_nValue4 = 0;
  double m_dValue5 = 0.0;
  double m_dValue6 = 0.0;
  ///@}
  int m_nValue7 = 0;  ///< value 7, truncated toward zero if it has a fraction
  RecordArray<CMTracesSEG>* m_pSegArray = MakeList();  ///< its SEG lines
};

/// A GUI or a CHG line.
class KESTRIN_EXPORT CMTracesGUICHG : public PooledRecord {
 public:
  ///@{
  /// Value N of the line, where N is the number in the name.
  double m_dValue1 = 0.0;
  double m_dValue2 = 0.0;
  int m_nValue3 = 0;
  double m_dValue4 = 0.0;
  double m_dValue5 = 0.0;
  int m_nValue6 = 0;
  ///@}
};

/// A net header line, and the lines that belong to it. Headers with the same name make separate nets.
class KESTRIN_TYPE CMTracesNET : public PooledRecord, private OwnedLists<6> {
 public:
  CString m_sName;                                           ///< its name, without the apostrophes around it
  RecordArray<CMTracesWIRANT>* m_pWirArray = MakeList();     ///< WIR lines
  RecordArray<CMTracesINCANT>* m_pIncArray = MakeList();     ///< INC lines
  RecordArray<CMTracesWIRANT>* m_pAntWirArray = MakeList();  ///< ANT lines with five values
  RecordArray<CMTracesINCANT>* m_pAntIncArray = MakeList();  ///< ANT lines with seven values
  RecordArray<CMTracesGUICHG>* m_pGuiArray = MakeList();     ///< GUI lines
  RecordArray<CMTracesGUICHG>* m_pChgArray = MakeList();     ///< CHG lines
};

}  // namespace kestrin
