#pragma once

/// @file
/// The model of a Tech file: the physical layers of the board and the via rules.

#include <memory>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/framework/string_array.h"
#include "kestrin/records/ex_ptr_array.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A pin. Tech files have none; the class exists because hosts refer to it.
class KESTRIN_EXPORT CMTechPin {
 public:
  CMTechPin() = default;
  CMTechPin(const CMTechPin&) = default;
  CMTechPin& operator=(const CMTechPin&) = default;
  virtual ~CMTechPin();
};

/// A physical layer.
class KESTRIN_EXPORT CMTechStackUpOrder : public PooledRecord {
 public:
  CMTechStackUpOrder() = default;
  CMTechStackUpOrder(const CMTechStackUpOrder&) = delete;
  CMTechStackUpOrder& operator=(const CMTechStackUpOrder&) = delete;
  virtual ~CMTechStackUpOrder();

  CStringArray m_arrLogicalLayerNames;  ///< the logical layers on this layer: arguments 3 and on
  CString m_sPhysicalLayerName;         ///< argument 2 of the line
  int m_nPhysicalLayerNumber = 0;       ///< argument 1 of the line
};

/// A via rule: the first, second and last argument of its line.
class KESTRIN_EXPORT CMTechVia : public PooledRecord {
 public:
  CMTechVia() = default;
  CMTechVia(const CMTechVia&) = default;
  CMTechVia& operator=(const CMTechVia&) = default;
  virtual ~CMTechVia();

  CString m_sArg2;     ///< argument 2
  CString m_sArgLast;  ///< the last argument; empty if there are fewer than three
  CString m_sArg1;     ///< argument 1
};

/// A list of pins. The list of a root owns its records.
class KESTRIN_TYPE CMTechPinArray : public CExPtrArray<CMTechPin*> {};
/// A list of physical layers. The list of a root owns its records.
class KESTRIN_TYPE CMTechStackupArray : public CExPtrArray<CMTechStackUpOrder*> {};
/// A list of via rules. The list of a root owns its records.
class KESTRIN_TYPE CMTechViaArray : public CExPtrArray<CMTechVia*> {};

/// The root of a Tech file.
///
///     for (const CMTechStackUpOrder* layer : *tech->m_pStackupArray) Use(layer->m_sPhysicalLayerName);
///
/// Copies share the lists, which are destroyed with the last copy. The pointers to the lists are never null.
class KESTRIN_EXPORT CMTech {
  /// What copies share. Members are destroyed from last to first, and hosts expect the records to be deleted
  /// in the order physical layers, via rules, pins.
  struct Contents {
    Owning<CMTechPinArray> pins;
    Owning<CMTechViaArray> vias;
    Owning<CMTechStackupArray> stackups;
  };
  std::shared_ptr<Contents> contents_ = std::make_shared<Contents>();

 public:
  CMTech();
  CMTech(const CMTech&);
  CMTech& operator=(const CMTech&);
  virtual ~CMTech();

  /// The number of the first layer with this name; 0 if there is none. Names are compared exactly.
  [[nodiscard]] int GetPhysicalLayerNumber(CString physicalLayerName) const;

  /// Copies the logical layers of the first layer with this name to the array, replacing its contents. If
  /// there is no such layer, leaves the array unchanged. Names are compared exactly.
  void GetLogicalLayerNamesForPhysicalLayerName(CString physicalLayerName, CStringArray& names) const;

  CMTechPinArray* m_pPinArray = &contents_->pins;              ///< always empty
  CMTechStackupArray* m_pStackupArray = &contents_->stackups;  ///< the physical layers, in file order
  CMTechViaArray* m_pViaArray = &contents_->vias;              ///< the via rules, in file order
};

}  // namespace kestrin
