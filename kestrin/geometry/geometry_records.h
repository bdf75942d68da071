#pragma once

/// @file
/// The small records that geometries are made of. All lengths are in the unit of their geometry; members
/// named spare or unset are there for the host's sake, and nothing fills them.

#include <cstdint>

#include "kestrin/framework/string.h"
#include "kestrin/geometry/number_list.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A geometry placed on another; the members are the arguments of its line.
class CMGeomAdd : public PooledRecord {
 public:
  CString m_sArg0;       ///< value 1 of its line
  double m_dArg1 = 0.0;  ///< value 2
  double m_dArg2 = 0.0;  ///< value 3
  CString m_sArg3;       ///< value 4
  int m_nArg4 = 0;       ///< value 5
  int m_nArg5 = 0;       ///< value 6
  int m_nArg6 = 0;       ///< value 7
};

/// An area that something has to keep out of.
class CMGeomKeepout : public PooledRecord, private OwnedLists<1> {
 public:
  CString m_sName;                      ///< value 2 of its line
  NumberArray* m_pCoords = MakeList();  ///< flat
};

/// The room that a component or generic part takes.
class CMGeomPlacementOutline : public PooledRecord, private OwnedLists<1> {
 public:
  CString m_sName;                      ///< value 2 of its line
  NumberArray* m_pCoords = MakeList();  ///< flat
};

/// An area for placing components.
class CMGeomPlacementRegion : public PooledRecord, private OwnedLists<1> {
 public:
  CString m_sName;  ///< always empty: lines give no name
  std::int64_t m_nUnset1 = 0;
  std::int64_t m_nUnset2 = 0;
  std::int64_t m_nUnset3 = 0;
  CString m_sSpare;
  NumberArray* m_pCoords = MakeList();  ///< flat
};

/// A drilled hole.
class CMGeomDrill : public PooledRecord {
 public:
  double m_dSize = 0.0;  ///< of the hole
  double m_dUnset = 0.0;
  ///@{
  /// Where it stands.
  double m_dX = 0.0;
  double m_dY = 0.0;
  ///@}
};

/// An exception from a component's default padstack; the members are the arguments of its line.
class CMGeomOverride : public PooledRecord {
 public:
  CString m_sArg1;  ///< value 2 of its line
  CString m_sArg2;  ///< value 3
  std::int64_t m_nUnset = 0;
};

/// Where a pin of a component stands.
class CMGeomPinDef : public PooledRecord {
 public:
  CString m_sName;  ///< of the pin
  ///@{
  /// Where it stands on the component.
  double m_dX = 0.0;
  double m_dY = 0.0;
  ///@}
};

/// Geometry files make none.
class CMGeomMechanicalParts {
 public:
  CString m_sSpare1;
  std::int64_t m_nUnset = 0;
  CString m_sSpare2;
};

/// Geometry files make none.
class CMGeomRoutingDirection {
 public:
  CString m_sSpare;
  std::int64_t m_nUnset = 0;
};

}  // namespace kestrin
