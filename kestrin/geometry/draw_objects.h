#pragma once

/// @file
/// The graphics of a geometry: paths, polygons, arcs and circles on named layers, in the unit of their
/// geometry.

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/geometry/number_list.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// What all drawing objects have in common. Hosts tell the kinds apart by m_sType.
class KESTRIN_EXPORT CMGeomDrawObj : public PooledRecord {
 public:
  CMGeomDrawObj() = default;
  CMGeomDrawObj(const CMGeomDrawObj&) = delete;
  CMGeomDrawObj& operator=(const CMGeomDrawObj&) = delete;
  virtual ~CMGeomDrawObj();

  CString m_sType;  ///< "LINE", "POLYGON", "ARC" or "CIRCLE"; empty in the base class

 protected:
  /// An object of a kind.
  explicit CMGeomDrawObj(const char* type) : m_sType(type) {}
};

/// An open polyline drawn with a pen.
class KESTRIN_EXPORT CMGeomPath : public CMGeomDrawObj, private OwnedLists<1> {
 public:
  CMGeomPath() : CMGeomDrawObj("LINE") {}
  ~CMGeomPath() override;

  CString m_sLayer;                     ///< as the file names it
  double m_dWidth = 0.0;                ///< of the pen
  NumberArray* m_pCoords = MakeList();  ///< flat
};

/// A closed outline.
class KESTRIN_EXPORT CMGeomPolygon : public CMGeomDrawObj, private OwnedLists<1> {
 public:
  CMGeomPolygon() : CMGeomDrawObj("POLYGON") {}
  ~CMGeomPolygon() override;

  CString m_sLayer;                     ///< as the file names it
  NumberArray* m_pCoords = MakeList();  ///< flat
};

/// An arc given by three pairs of coordinates.
class KESTRIN_EXPORT CMGeomArc : public CMGeomDrawObj {
 public:
  CMGeomArc() : CMGeomDrawObj("ARC") {}
  ~CMGeomArc() override;

  CString m_sLayer;  ///< as the file names it
  ///@{
  /// One of the three pairs.
  double m_dX1 = 0.0;
  double m_dY1 = 0.0;
  double m_dX2 = 0.0;
  double m_dY2 = 0.0;
  double m_dX3 = 0.0;
  double m_dY3 = 0.0;
  ///@}

  double m_dWidth = 0.0;  ///< of the pen
  int m_nArcMode = 0;     ///< how the third pair is meant: 0 not said, 1 "@radius", 2 "@center"
};

/// A full circle.
class KESTRIN_EXPORT CMGeomCircle : public CMGeomDrawObj {
 public:
  CMGeomCircle() : CMGeomDrawObj("CIRCLE") {}
  ~CMGeomCircle() override;

  CString m_sLayer;       ///< as the file names it
  double m_dX = 0.0;      ///< the centre
  double m_dY = 0.0;      ///< the centre
  double m_dSize = 0.0;   ///< as the file has it
  double m_dWidth = 0.0;  ///< of the pen
};

/// Drawing objects in file order. The array deletes them when it is destroyed.
class KESTRIN_EXPORT CMGeomDrawObjArray : public Owning<RecordArray<CMGeomDrawObj>> {};

}  // namespace kestrin
