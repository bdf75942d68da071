#pragma once

/// @file
/// What a Tech file says: the board's physical layer stack-up and its via rules.

#include <memory>

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/framework/string_array.h"
#include "kestrin/records/ex_ptr_array.h"
#include "kestrin/records/ownership.h"

namespace kestrin {

/// A tech pin. Tech files define none; the type stands for the host's sake.
class KESTRIN_EXPORT CMTechPin {
 public:
  CMTechPin() = default;
  CMTechPin(const CMTechPin&) = default;
  CMTechPin& operator=(const CMTechPin&) = default;
  virtual ~CMTechPin();
};

/// One physical layer.
class KESTRIN_EXPORT CMTechStackUpOrder {
 public:
  CMTechStackUpOrder() = default;
  CMTechStackUpOrder(const CMTechStackUpOrder&) = delete;
  CMTechStackUpOrder& operator=(const CMTechStackUpOrder&) = delete;
  virtual ~CMTechStackUpOrder();

  CStringArray m_arrLogicalLayerNames;  ///< logical layers on this physical layer, in file order
  CString m_sPhysicalLayerName;         ///< argument 2
  int m_nPhysicalLayerNumber = 0;       ///< argument 1
};

/// One via rule: the first, second and last argument of its line in the file.
class KESTRIN_EXPORT CMTechVia {
 public:
  CMTechVia() = default;
  CMTechVia(const CMTechVia&) = default;
  CMTechVia& operator=(const CMTechVia&) = default;
  virtual ~CMTechVia();

  CString m_sArg2;     ///< argument 2
  CString m_sArgLast;  ///< empty when the rule has fewer than three arguments
  CString m_sArg1;     ///< argument 1
};

/// Tech pins; a root's array deletes them with itself.
class KESTRIN_EXPORT CMTechPinArray : public CExPtrArray<CMTechPin*> {};
/// Physical layers; a root's array deletes them with itself.
class KESTRIN_EXPORT CMTechStackupArray : public CExPtrArray<CMTechStackUpOrder*> {};
/// Via rules; a root's array deletes them with itself.
class KESTRIN_EXPORT CMTechViaArray : public CExPtrArray<CMTechVia*> {};

/// The root of a Tech file. Copies share the arrays; arrays and records go with the last copy. The pointers
/// to the arrays are never null.
class KESTRIN_EXPORT CMTech {
  /// What copies share. Members are destroyed last first: the physical layers, the via rules, the pins.
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

  /// The number of the first layer with exactly this name; 0 when there is none.
  [[nodiscard]] int GetPhysicalLayerNumber(CString physicalLayerName) const;

  /// Replaces the names by the logical layers of the first layer with exactly this name; leaves them as they
  /// are when there is none.
  void GetLogicalLayerNamesForPhysicalLayerName(CString physicalLayerName, CStringArray& names) const;

  CMTechPinArray* m_pPinArray = &contents_->pins;              ///< always empty
  CMTechStackupArray* m_pStackupArray = &contents_->stackups;  ///< a record per physical layer, in file order
  CMTechViaArray* m_pViaArray = &contents_->vias;              ///< a record per via rule, in file order
};

}  // namespace kestrin
