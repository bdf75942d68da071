#pragma once

/// @file
/// The records that geometries consist of. Lengths are in the unit of the geometry. Coordinate lists are
/// flat: x, y, x, y, ... Members named spare or unset are never filled; they keep the layout that hosts
/// expect.

#include <cstdint>

#include "kestrin/framework/string.h"
#include "kestrin/geometry/number_list.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// A geometry placed on another: a $$add line.
class CMGeomAdd : public PooledRecord {
 public:
  CString m_sArg0;       ///< value 1 of the line
  double m_dArg1 = 0.0;  ///< value 2
  double m_dArg2 = 0.0;  ///< value 3
  CString m_sArg3;       ///< value 4
  int m_nArg4 = 0;       ///< value 5
  int m_nArg5 = 0;       ///< value 6
  int m_nArg6 = 0;       ///< value 7
};

/// A keep-out area. The list that it is in says what must keep out.
class CMGeomKeepout : public PooledRecord, private OwnedLists<1> {
 public:
  CString m_sName;                      ///< value 2 of the line
  NumberArray* m_pCoords = MakeList();  ///< coordinates
};

/// The area that a component or generic part takes.
class CMGeomPlacementOutline : public PooledRecord, private OwnedLists<1> {
 public:
  CString m_sName;                      ///< value 2 of the line
  NumberArray* m_pCoords = MakeList();  ///< coordinates
};

/// An area in which components may be placed.
class CMGeomPlacementRegion : public PooledRecord, private OwnedLists<1> {
 public:
  CString m_sName;  ///< always empty: the line has no name
  std::int64_t m_nUnset1 = 0;
  std::int64_t m_nUnset2 = 0;
  std::int64_t m_nUnset3 = 0;
  CString m_sSpare;
  NumberArray* m_pCoords = MakeList();  ///< coordinates
};

/// A drilled hole.
class CMGeomDrill : public PooledRecord {
 public:
  double m_dSize = 0.0;  ///< the size of the hole
  double m_dUnset = 0.0;
  ///@{
  /// The position of the hole.
  double m_dX = 0.0;
  double m_dY = 0.0;
  ///@}
};

/// An exception to a component's default padstack.
class CMGeomOverride : public PooledRecord {
 public:
  CString m_sArg1;  ///< value 2 of the line
  CString m_sArg2;  ///< value 3
  std::int64_t m_nUnset = 0;
};

/// A pin of a component.
class CMGeomPinDef : public PooledRecord {
 public:
  CString m_sName;  ///< the name of the pin
  ///@{
  /// The position of the pin on the component.
  double m_dX = 0.0;
  double m_dY = 0.0;
  ///@}
};

/// Never created by a reader.
class CMGeomMechanicalParts {
 public:
  CString m_sSpare1;
  std::int64_t m_nUnset = 0;
  CString m_sSpare2;
};

/// Never created by a reader.
class CMGeomRoutingDirection {
 public:
  CString m_sSpare;
  std::int64_t m_nUnset = 0;
};

}  // namespace kestrin
