#pragma once

/// @file
/// What a Neutral file says of the nets of the selected board.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A pin of a net. The component is named, not pointed to.
class KESTRIN_EXPORT CMRefPin : public PooledRecord {
 public:
  CString m_sRef;  ///< the component reference: the part of the pin name before its first "-"
  CString m_sPin;  ///< the part behind it; the whole name when there is no "-"
};

/// A net property.
class KESTRIN_EXPORT CMNetProperty {
 public:
  CString m_sName;   ///< not filled
  CString m_sValue;  ///< not filled
};

/// A net.
class KESTRIN_EXPORT CMNetInfo : public PooledRecord, private OwnedLists<2> {
 public:
  CString m_sName;                                         ///< without apostrophes and trailing white space
  RecordArray<CMRefPin>* m_pPins = MakeList();             ///< in file order
  RecordArray<CMNetProperty>* m_pProperties = MakeList();  ///< always empty
};

/// The root of a Neutral file's nets.
class KESTRIN_EXPORT CMNetList : private OwnedLists<1> {
 public:
  RecordArray<CMNetInfo>* m_pNets = MakeList();  ///< in file order
};

}  // namespace kestrin
