#pragma once

/// @file
/// Points and point arrays, for exchange with the host; the models keep numbers of their own. Coordinates are
/// in the unit of whatever they come from.

#include "kestrin/base/export.h"
#include "kestrin/framework/array.h"
#include "kestrin/records/ex_ptr_array.h"

namespace kestrin {

/// A point in the plane.
class KESTRIN_EXPORT CPointD {
 public:
  ///@{
  /// A coordinate.
  double x = 0.0;
  double y = 0.0;
  ///@}

  CPointD() = default;
  /// The point with these coordinates.
  CPointD(double newX, double newY) : x(newX), y(newY) {}

  ///@{
  /// A coordinate; the references are valid as long as the point.
  [[nodiscard]] double& GetX() { return x; }
  [[nodiscard]] double& GetY() { return y; }
  [[nodiscard]] double GetX() const { return x; }
  [[nodiscard]] double GetY() const { return y; }
  ///@}

  ///@{
  /// Sets a coordinate.
  void SetX(const double& newX) { x = newX; }
  void SetY(const double& newY) { y = newY; }
  ///@}

  /// Sets both coordinates.
  void SetData(const double& newX, const double& newY) {
    x = newX;
    y = newY;
  }
};

/// A point in space.
class KESTRIN_EXPORT CPoint3D {
 public:
  ///@{
  /// A coordinate.
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  ///@}

  CPoint3D() = default;
  /// The point with these coordinates.
  CPoint3D(double newX, double newY, double newZ) : x(newX), y(newY), z(newZ) {}
  CPoint3D(const CPoint3D&) = default;
  CPoint3D& operator=(const CPoint3D&) = default;
  virtual ~CPoint3D();

  ///@{
  /// Equal is the same object, and are coordinates that are equal as doubles; 1 for true, 0 for false.
  virtual int operator==(const CPoint3D& other) const;
  virtual int operator!=(const CPoint3D& other) const;
  ///@}

  /// A new point, which the caller owns.
  [[nodiscard]] virtual CPoint3D* clone() const;

  ///@{
  /// A coordinate; the references are valid as long as the point.
  [[nodiscard]] double& GetX() { return x; }
  [[nodiscard]] double& GetY() { return y; }
  [[nodiscard]] double& GetZ() { return z; }
  [[nodiscard]] double GetX() const { return x; }
  [[nodiscard]] double GetY() const { return y; }
  [[nodiscard]] double GetZ() const { return z; }
  ///@}

  ///@{
  /// Sets a coordinate.
  void SetX(const double& newX) { x = newX; }
  void SetY(const double& newY) { y = newY; }
  void SetZ(const double& newZ) { z = newZ; }
  ///@}

  /// Sets all coordinates.
  void SetData(const double& newX, const double& newY, const double& newZ);
  /// Gives all coordinates.
  void GetData(double& outX, double& outY, double& outZ) const;
};

/// An array of point values.
class KESTRIN_EXPORT CArrayPointD : public CArray<CPointD, CPointD&> {
 public:
  CArrayPointD() = default;
  CArrayPointD(const CArrayPointD& source) : CArray() { Copy(source); }
  CArrayPointD& operator=(const CArrayPointD& source);

  /// A new array with the same points, which the caller owns.
  [[nodiscard]] virtual CArrayPointD* clone() const;

  /// Writes the count, then x and y of every point; or replaces the points by those of the archive. Raises
  /// CArchiveException when the archive ends early, and then the points are as they were.
  void Serialize(CArchive& archive) override;
};

/// An array of point arrays. A copy has arrays of its own; as with every CExPtrArray they are deleted by the
/// delete operations only.
class KESTRIN_EXPORT CArrayArrayPointD : public CExPtrArray<CArrayPointD*> {
 public:
  CArrayArrayPointD() = default;
  CArrayArrayPointD(const CArrayArrayPointD& source);
  CArrayArrayPointD& operator=(const CArrayArrayPointD&) = delete;

  /// A new array with copies of the arrays, which the caller owns.
  [[nodiscard]] virtual CArrayArrayPointD* clone() const;
};

/// An array of points in space. A copy has points of its own; as with every CExPtrArray they are deleted by
/// the delete operations only.
class KESTRIN_EXPORT CArrayPoint3D : public CExPtrArray<CPoint3D*> {
 public:
  CArrayPoint3D() = default;
  CArrayPoint3D(const CArrayPoint3D& source);
  CArrayPoint3D& operator=(const CArrayPoint3D&) = delete;

  ///@{
  /// Equal is the same array, and are equal points in the same order; 1 for true, 0 for false.
  virtual int operator==(const CArrayPoint3D& other) const;
  virtual int operator!=(const CArrayPoint3D& other) const;
  ///@}

  /// A new array with copies of the points, which the caller owns.
  [[nodiscard]] virtual CArrayPoint3D* clone() const;
};

}  // namespace kestrin
