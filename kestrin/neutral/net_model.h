#pragma once

/// @file
/// The nets of a Neutral file.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A pin of a net: `U_2-2` is pin 2 of component U_2.
class KESTRIN_EXPORT CMRefPin : public PooledRecord {
 public:
  CString m_sRef;  ///< the component's reference: the name before its first "-", empty without one
  CString m_sPin;  ///< the pin: the name after its first "-", the whole name without one
};

/// A property of a net. Readers create none.
class KESTRIN_EXPORT CMNetProperty {
 public:
  CString m_sName;   ///< its name
  CString m_sValue;  ///< its value
};

/// A net.
class KESTRIN_TYPE CMNetInfo : public PooledRecord, private OwnedLists<2> {
 public:
  CString m_sName;                              ///< its name, without apostrophes and trailing white space
  RecordArray<CMRefPin>* m_pPins = MakeList();  ///< its pins, in file order
  RecordArray<CMNetProperty>* m_pProperties = MakeList();  ///< always empty
};

/// The root of the nets of a Neutral file.
///
///     for (const CMNetInfo* net : *netList->m_pNets) Use(net->m_sName, *net->m_pPins);
class KESTRIN_TYPE CMNetList : private OwnedLists<1> {
 public:
  RecordArray<CMNetInfo>* m_pNets = MakeList();  ///< the nets of the selected board, in file order
};

}  // namespace kestrin
