#pragma once

/// @file
/// What a Neutral file says of the board, its placements on the panel, and its components. Values are kept as
/// the file gives them, quotes and units included.

#include <cstdint>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// The values of a COMP record, by their place in it.
struct KESTRIN_EXPORT tagMCOMPDATA {
  CString m_sValue1;
  CString m_sValue2;
  CString m_sValue3;
  CString m_sValue4;
  double m_dValue5 = 0.0;
  double m_dValue6 = 0.0;
  int m_nValue7 = 1;
  int m_nValue8 = 0;
};

/// A property of a component.
struct KESTRIN_EXPORT tagMCOMPCOMMENT : public PooledRecord {
  CString m_sName;   ///< the text before its first comma
  CString m_sValue;  ///< without its enclosing double quotes
};

/// A group of values of a component's REFLOC property.
class KESTRIN_EXPORT CMCompsRefLoc : public PooledRecord {
 public:
  double m_dValue1 = 0.0;
  double m_dValue2 = 0.0;
  int m_nValue3 = 0;
  CString m_sValue4;
  double m_dValue5 = 0.0;
  double m_dValue6 = 0.0;
  double m_dValue7 = 0.0;
  CString m_sValue8;
  CString m_sValue9;         ///< value 10 where the group has one, else value 9
  std::int64_t m_Extra = 0;  ///< not filled
};

/// A component.
class KESTRIN_EXPORT CMCompsInfo : public PooledRecord, private OwnedLists<2> {
 public:
  CString m_sExtra1;       ///< not filled
  tagMCOMPDATA m_Data;     ///< the values of its line
  CString m_sRefLocFirst;  ///< the first value of its last REFLOC property with values
  RecordArray<CMCompsRefLoc>* m_pRefLocs = MakeList();     ///< the groups of its REFLOC properties
  CString m_sExtra2;                                       ///< not filled
  RecordArray<tagMCOMPCOMMENT>* m_pComments = MakeList();  ///< its other properties, in file order
  int m_nExtra = 0;                                        ///< not filled
};

/// A placement of a board on the panel: a P_ADDP record, by the places of its values.
class KESTRIN_EXPORT CMCompsPanel : public PooledRecord {
 public:
  CMCompsPanel() = default;
  CMCompsPanel(const CMCompsPanel&) = default;
  CMCompsPanel& operator=(const CMCompsPanel&) = default;
  virtual ~CMCompsPanel();

  CString m_sBoardName;  ///< value 2 of its line
  int m_nValue6 = 0;     ///< tells whether the placement can select its board's sections
  int m_nValue7 = 0;
  int m_nValue8 = 0;
  double m_dValue4 = 0.0;
  double m_dValue5 = 0.0;
};

/// The root of a Neutral file's components.
class KESTRIN_EXPORT CMComps : private OwnedLists<2> {
 public:
  CString m_sUnits;                                   ///< the unit word of the file
  int m_nReadFlag = 0;                                ///< 1 once a reading has begun
  double m_dBoardValue3 = 0.0;                        ///< value 3 of the BOARD record, behind its last ":"
  double m_dBoardValue4 = 0.0;                        ///< value 4, likewise
  RecordArray<CMCompsInfo>* m_pInfos = MakeList();    ///< the components of the selected board, in file order
  RecordArray<CMCompsPanel>* m_pPanels = MakeList();  ///< all placements, in file order
};

}  // namespace kestrin
