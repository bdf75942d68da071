#pragma once

/// @file
/// The records of copper fills. A field is named after a value of its line: m_dValue5 is value 5, as a
/// double. Lengths are in the unit of the file, CMTraces::m_sUnits. Fields for which a line has no value are
/// 0 or empty. Names are without the apostrophes around them.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A VER line: a vertex of a fill, an area or an island.
class KESTRIN_EXPORT CMTracesVER : public PooledRecord {
 public:
  double m_dX = 0.0;  ///< value 1
  double m_dY = 0.0;  ///< value 2
};

/// A TTI line. It has 3 or 7 values.
class KESTRIN_EXPORT CMTracesTTI : public PooledRecord {
 public:
  ///@{
  /// A name that is not in the line: the session's reader copies it from the fill, the strict reader from the
  /// last area before the line.
  CString m_sName1;
  CString m_sName2;
  ///@}
  ///@{
  /// Value N of the line, where N is the number in the name.
  double m_dValue1 = 0.0;
  double m_dValue2 = 0.0;
  CString m_sValue3;
  int m_nValue4 = 0;
  double m_dValue5 = 0.0;
  double m_dValue6 = 0.0;
  int m_nValue7 = 0;
  ///@}
};

/// The fields of ARE and ARS lines. A line has 6, 8 or 13 values.
class KESTRIN_TYPE CMTracesArea : public PooledRecord, private OwnedLists<2> {
 public:
  CString m_sName1;  ///< value 1
  CString m_sName2;  ///< value 2
  ///@{
  /// Value N of the line, where N is the number in the name.
  CString m_sValue3;
  int m_nValue4 = 0;
  double m_dValue5 = 0.0;
  int m_nValue6 = 0;
  ///@}
  int m_nLastValue = 0;  ///< value 8 of 8, value 13 of 13
  ///@{
  /// Value N of a line with 13 values, where N is the number in the name.
  int m_nValue8 = 0;
  int m_nValue9 = 0;
  double m_dValue10 = 0.0;
  double m_dValue11 = 0.0;
  ///@}
  RecordArray<CMTracesVER>* m_pVerArray = MakeList();  ///< the vertices of the area
  RecordArray<CMTracesTTI>* m_pTtiArray = MakeList();  ///< always empty: TTI lines belong to the fill
};

/// An ARE line: an area of a fill.
class KESTRIN_EXPORT CMTracesARE : public CMTracesArea {};

/// An ARS line: an area of a fill, in a list of its own.
class KESTRIN_EXPORT CMTracesARS : public CMTracesArea {};

/// An ISL line: an island of a fill.
class KESTRIN_TYPE CMTracesISL : public PooledRecord, private OwnedLists<1> {
 public:
  int m_nValue1 = 0;                                   ///< value 1
  RecordArray<CMTracesVER>* m_pVerArray = MakeList();  ///< the vertices of the island
};

/// An ISS line: an island of a fill, in a list of its own.
class KESTRIN_TYPE CMTracesISS : public PooledRecord, private OwnedLists<1> {
 public:
  CMTracesISS() = default;
  CMTracesISS(const CMTracesISS&) = delete;
  CMTracesISS& operator=(const CMTracesISS&) = delete;
  KESTRIN_EXPORT virtual ~CMTracesISS();

  int m_nValue1 = 0;                                   ///< value 1
  RecordArray<CMTracesVER>* m_pVerArray = MakeList();  ///< the vertices of the island
};

/// A copper fill: a FIL line with 16 or 21 values, and the lines that belong to it.
///
/// An area without a fill gets one, too. It has the names of the area; the session's reader also sets
/// m_dValue9 to the area's m_dValue5 and m_nValue7 to 1.
class KESTRIN_TYPE CMTracesFIL : public PooledRecord, private OwnedLists<6> {
 public:
  /// Makes an empty fill. The ARS list is created last because hosts expect its records to be deleted last.
  CMTracesFIL() { m_pArsArray = MakeList(); }

  CString m_sName1;  ///< value 1
  CString m_sName2;  ///< value 2
  ///@{
  /// Value N of the line, where N is the number in the name.
  CString m_sValue3;
  int m_nValue4 = 0;
  int m_nValue5 = 0;
  int m_nValue6 = 0;
  int m_nValue7 = 0;
  int m_nValue8 = 0;
  double m_dValue9 = 0.0;
  int m_nValue10 = 0;
  int m_nValue11 = 0;
  int m_nValue12 = 0;
  ///@}
  CString m_sTail1;                                    ///< value 14 of 16, value 19 of 21
  CString m_sTail2;                                    ///< value 15 of 16, value 20 of 21
  CString m_sTail3;                                    ///< value 16 of 16, value 21 of 21
  int m_nExt1 = 0;                                     ///< value 14 of 21
  int m_nExt2 = 0;                                     ///< value 15 of 21
  double m_dExt3 = 0.0;                                ///< value 16 of 21
  double m_dExt4 = 0.0;                                ///< value 17 of 21
  RecordArray<CMTracesVER>* m_pVerArray = MakeList();  ///< the fill's own vertices
  RecordArray<CMTracesARE>* m_pAreArray = MakeList();  ///< its ARE lines
  RecordArray<CMTracesARS>* m_pArsArray = nullptr;     ///< its ARS lines
  RecordArray<CMTracesISL>* m_pIslArray = MakeList();  ///< its ISL lines
  RecordArray<CMTracesISS>* m_pIssArray = MakeList();  ///< its ISS lines
  RecordArray<CMTracesTTI>* m_pTtiArray = MakeList();  ///< its TTI lines
};

}  // namespace kestrin
