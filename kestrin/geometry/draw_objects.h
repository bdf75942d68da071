#pragma once

/// @file
/// The drawing objects of a geometry: paths, polygons, arcs and circles. Lengths are in the unit of the
/// geometry. Coordinate lists are flat: x, y, x, y, ...

#include "kestrin/base/export.h"
#include "kestrin/framework/string.h"
#include "kestrin/geometry/number_list.h"
#include "kestrin/records/ownership.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// The base class of drawing objects. Look at m_sType to find out which one you have:
///
///     if (object->m_sType == "LINE") Draw(static_cast<const CMGeomPath&>(*object));
class KESTRIN_EXPORT CMGeomDrawObj : public PooledRecord {
 public:
  CMGeomDrawObj() = default;
  CMGeomDrawObj(const CMGeomDrawObj&) = delete;
  CMGeomDrawObj& operator=(const CMGeomDrawObj&) = delete;
  virtual ~CMGeomDrawObj();

  CString m_sType;  ///< "LINE", "POLYGON", "ARC" or "CIRCLE"; empty in the base class

 protected:
  /// Sets m_sType.
  explicit CMGeomDrawObj(const char* type) : m_sType(type) {}
};

/// An open polyline drawn with a pen: "LINE".
class KESTRIN_TYPE CMGeomPath : public CMGeomDrawObj, private OwnedLists<1> {
 public:
  CMGeomPath() : CMGeomDrawObj("LINE") {}
  KESTRIN_EXPORT ~CMGeomPath() override;

  CString m_sLayer;                     ///< the name of the layer in the file
  double m_dWidth = 0.0;                ///< the width of the pen
  NumberArray* m_pCoords = MakeList();  ///< coordinates of the points
};

/// A closed outline: "POLYGON".
class KESTRIN_TYPE CMGeomPolygon : public CMGeomDrawObj, private OwnedLists<1> {
 public:
  CMGeomPolygon() : CMGeomDrawObj("POLYGON") {}
  KESTRIN_EXPORT ~CMGeomPolygon() override;

  CString m_sLayer;                     ///< the name of the layer in the file
  NumberArray* m_pCoords = MakeList();  ///< coordinates of the corners
};

/// An arc given by three pairs of coordinates: "ARC".
class KESTRIN_EXPORT CMGeomArc : public CMGeomDrawObj {
 public:
  CMGeomArc() : CMGeomDrawObj("ARC") {}
  ~CMGeomArc() override;

  CString m_sLayer;  ///< the name of the layer in the file
  ///@{
  /// A coordinate of one of the three pairs.
  double m_dX1 = 0.0;
  double m_dY1 = 0.0;
  double m_dX2 = 0.0;
  double m_dY2 = 0.0;
  double m_dX3 = 0.0;
  double m_dY3 = 0.0;
  ///@}

  double m_dWidth = 0.0;  ///< the width of the pen
  int m_nArcMode = 0;     ///< what the third pair means: 0 not given, 1 "@radius", 2 "@center"
};

/// A full circle: "CIRCLE".
class KESTRIN_EXPORT CMGeomCircle : public CMGeomDrawObj {
 public:
  CMGeomCircle() : CMGeomDrawObj("CIRCLE") {}
  ~CMGeomCircle() override;

  CString m_sLayer;  ///< the name of the layer in the file
  ///@{
  /// A coordinate of the centre.
  double m_dX = 0.0;
  double m_dY = 0.0;
  ///@}
  double m_dSize = 0.0;   ///< the size, value 4 of the line
  double m_dWidth = 0.0;  ///< the width of the pen
};

/// A list of drawing objects in file order. It deletes them when it is destroyed.
class KESTRIN_TYPE CMGeomDrawObjArray : public Owning<RecordArray<CMGeomDrawObj>> {};

}  // namespace kestrin
