#pragma once

/// @file
/// The records that a copper fill consists of. A field is named after the value of its line that it keeps:
/// m_dValue5 is value 5, as a double, in the unit that the file names. Fields that the form of a line does
/// not have are 0 or empty.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A VER line: a vertex of the fill, area or island before it.
class KESTRIN_EXPORT CMTracesVER : public PooledRecord {
 public:
  double m_dX = 0.0;  ///< value 1
  double m_dY = 0.0;  ///< value 2
};

/// A TTI line, in its short form (3 values) or its long form (7 values).
class KESTRIN_EXPORT CMTracesTTI : public PooledRecord {
 public:
  CString m_sName1;  ///< the first name of its fill; the strict reader: of the last area before it
  CString m_sName2;  ///< the second name, likewise
  double m_dValue1 = 0.0;
  double m_dValue2 = 0.0;
  CString m_sValue3;
  int m_nValue4 = 0;       ///< long form
  double m_dValue5 = 0.0;  ///< long form
  double m_dValue6 = 0.0;  ///< long form
  int m_nValue7 = 0;       ///< long form
};

/// What an ARE and an ARS line have in common: all of it. A line has 6, 8 or 13 values.
class KESTRIN_EXPORT CMTracesArea : public PooledRecord, private OwnedLists<2> {
 public:
  CString m_sName1;  ///< without its quotes
  CString m_sName2;  ///< without its quotes
  CString m_sValue3;
  int m_nValue4 = 0;
  double m_dValue5 = 0.0;
  int m_nValue6 = 0;
  int m_nLastValue = 0;                                ///< value 8 of 8, value 13 of 13
  int m_nValue8 = 0;                                   ///< 13 values
  int m_nValue9 = 0;                                   ///< 13 values
  double m_dValue10 = 0.0;                             ///< 13 values
  double m_dValue11 = 0.0;                             ///< 13 values
  RecordArray<CMTracesVER>* m_pVerArray = MakeList();  ///< the vertices of the area
  RecordArray<CMTracesTTI>* m_pTtiArray = MakeList();  ///< always empty: TTI lines belong to the fill
};

/// An ARE line: an area of a fill.
class KESTRIN_EXPORT CMTracesARE : public CMTracesArea {};

/// An ARS line: an area of a fill, kept apart from its ARE lines.
class KESTRIN_EXPORT CMTracesARS : public CMTracesArea {};

/// An ISL line: an island of a fill.
class KESTRIN_EXPORT CMTracesISL : public PooledRecord, private OwnedLists<1> {
 public:
  int m_nValue1 = 0;
  RecordArray<CMTracesVER>* m_pVerArray = MakeList();  ///< the vertices of the island
};

/// An ISS line: an island of a fill, kept apart from its ISL lines.
class KESTRIN_EXPORT CMTracesISS : public PooledRecord, private OwnedLists<1> {
 public:
  CMTracesISS() = default;
  CMTracesISS(const CMTracesISS&) = delete;
  CMTracesISS& operator=(const CMTracesISS&) = delete;
  virtual ~CMTracesISS();

  int m_nValue1 = 0;
  RecordArray<CMTracesVER>* m_pVerArray = MakeList();  ///< the vertices of the island
};

/// A FIL line, in its short form (16 values) or its long form (21 values), or a fill that stands for areas
/// without one: that has the names of the first such area and, from the session's reader, its m_dValue5 as
/// m_dValue9 and 1 as m_nValue7.
class KESTRIN_EXPORT CMTracesFIL : public PooledRecord, private OwnedLists<6> {
 public:
  /// An empty fill. The ARS list is made last because hosts expect its records to be deleted last.
  CMTracesFIL() { m_pArsArray = MakeList(); }

  CString m_sName1;  ///< without its quotes
  CString m_sName2;  ///< without its quotes
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
  CString m_sTail1;                                    ///< value 14 of 16, value 19 of 21
  CString m_sTail2;                                    ///< value 15 of 16, value 20 of 21
  CString m_sTail3;                                    ///< value 16 of 16, value 21 of 21
  int m_nExt1 = 0;                                     ///< long form: value 14
  int m_nExt2 = 0;                                     ///< long form: value 15
  double m_dExt3 = 0.0;                                ///< long form: value 16
  double m_dExt4 = 0.0;                                ///< long form: value 17
  RecordArray<CMTracesVER>* m_pVerArray = MakeList();  ///< the fill's own vertices
  RecordArray<CMTracesARE>* m_pAreArray = MakeList();  ///< its ARE lines
  RecordArray<CMTracesARS>* m_pArsArray = nullptr;     ///< its ARS lines
  RecordArray<CMTracesISL>* m_pIslArray = MakeList();  ///< its ISL lines
  RecordArray<CMTracesISS>* m_pIssArray = MakeList();  ///< its ISS lines
  RecordArray<CMTracesTTI>* m_pTtiArray = MakeList();  ///< its TTI lines
};

}  // namespace kestrin
