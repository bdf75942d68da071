#pragma once

/// @file
/// The components of a Neutral file, with the values of the board and its placements on the panel. Texts are
/// stored as they are in the file, quotes included. Lengths are in CMComps::m_sUnits.

#include <cstdint>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// The values of a COMP line.
struct KESTRIN_EXPORT tagMCOMPDATA {
  ///@{
  /// Value N of the line, where N is the number in the name.
  CString m_sValue1;
  CString m_sValue2;
  CString m_sValue3;
  CString m_sValue4;
  double m_dValue5 = 0.0;
  double m_dValue6 = 0.0;
  int m_nValue7 = 1;
  int m_nValue8 = 0;
  ///@}
};

/// A property of a component: `(HEIGHT,"10.0")`.
struct KESTRIN_EXPORT tagMCOMPCOMMENT : public PooledRecord {
  CString m_sName;   ///< the text before the first comma: `HEIGHT`
  CString m_sValue;  ///< the text between the first and the last double quote: `10.0`
};

/// A group of values of a component's REFLOC property.
class KESTRIN_EXPORT CMCompsRefLoc : public PooledRecord {
 public:
  ///@{
  /// Value N of the group, where N is the number in the name.
  double m_dValue1 = 0.0;
  double m_dValue2 = 0.0;
  int m_nValue3 = 0;
  CString m_sValue4;
  double m_dValue5 = 0.0;
  double m_dValue6 = 0.0;
  double m_dValue7 = 0.0;
  CString m_sValue8;
  ///@}
  CString m_sValue9;         ///< value 10 if the group has one, else value 9
  std::int64_t m_Extra = 0;  ///< never filled
};

/// A component.
class KESTRIN_TYPE CMCompsInfo : public PooledRecord, private OwnedLists<2> {
 public:
  CString m_sExtra1;
  tagMCOMPDATA m_Data;     ///< the values of its COMP line
  CString m_sRefLocFirst;  ///< the first value of its last REFLOC property that has values
  RecordArray<CMCompsRefLoc>* m_pRefLocs = MakeList();  ///< the groups of its REFLOC properties
  CString m_sExtra2;
  RecordArray<tagMCOMPCOMMENT>* m_pComments = MakeList();  ///< its other properties, in file order
  int m_nExtra = 0;
};

/// A placement of a board on the panel: a P_ADDP line.
class KESTRIN_EXPORT CMCompsPanel : public PooledRecord {
 public:
  CMCompsPanel() = default;
  CMCompsPanel(const CMCompsPanel&) = default;
  CMCompsPanel& operator=(const CMCompsPanel&) = default;
  virtual ~CMCompsPanel();

  CString m_sBoardName;  ///< value 2 of the line
  int m_nValue6 = 0;     ///< value 6; decides whether the placement can select which sections are read
  ///@{
  /// Value N of the line, where N is the number in the name.
  int m_nValue7 = 0;
  int m_nValue8 = 0;
  double m_dValue4 = 0.0;
  double m_dValue5 = 0.0;
  ///@}
};

/// The root of the components of a Neutral file.
///
///     for (const CMCompsInfo* component : *comps->m_pInfos) Place(component->m_Data.m_sValue1);
class KESTRIN_TYPE CMComps : private OwnedLists<2> {
 public:
  CString m_sUnits;             ///< the unit that the file names last
  int m_nReadFlag = 0;          ///< 1 once a reader has started on the root
  double m_dBoardValue3 = 0.0;  ///< value 3 of the BOARD line: the number after its last ":"
  double m_dBoardValue4 = 0.0;  ///< value 4, in the same way
  RecordArray<CMCompsInfo>* m_pInfos = MakeList();    ///< the components of the selected board, in file order
  RecordArray<CMCompsPanel>* m_pPanels = MakeList();  ///< the placements of all boards, in file order
};

}  // namespace kestrin
