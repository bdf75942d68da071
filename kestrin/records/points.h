#pragma once

/// @file
/// Points and arrays of points, for passing coordinates to and from a host. The models do not use them: they
/// store plain numbers. No unit is attached: coordinates are in the unit of the data they were copied from.

#include "kestrin/base/export.h"
#include "kestrin/framework/array.h"
#include "kestrin/records/ex_ptr_array.h"

namespace kestrin {

/// A point in the plane.
class KESTRIN_EXPORT CPointD {
 public:
  ///@{
  /// A coordinate, 0 in a new point.
  double x = 0.0;
  double y = 0.0;
  ///@}

  CPointD() = default;
  /// Makes a point from its coordinates.
  CPointD(double newX, double newY) : x(newX), y(newY) {}

  ///@{
  /// Returns a coordinate. The references are valid as long as the point is.
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
  /// A coordinate, 0 in a new point.
  double x = 0.0;
  double y = 0.0;
  double z = 0.0;
  ///@}

  CPoint3D() = default;
  /// Makes a point from its coordinates.
  CPoint3D(double newX, double newY, double newZ) : x(newX), y(newY), z(newZ) {}
  CPoint3D(const CPoint3D&) = default;
  CPoint3D& operator=(const CPoint3D&) = default;
  virtual ~CPoint3D();

  ///@{
  /// Compares the coordinates exactly, without a tolerance; returns 1 for true, 0 for false. A point equals
  /// itself even if a coordinate is not a number.
  virtual int operator==(const CPoint3D& other) const;
  virtual int operator!=(const CPoint3D& other) const;
  ///@}

  /// Returns a copy on the heap, which the caller owns.
  [[nodiscard]] virtual CPoint3D* clone() const;

  ///@{
  /// Returns a coordinate. The references are valid as long as the point is.
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
  /// Copies all coordinates to the arguments.
  void GetData(double& outX, double& outY, double& outZ) const;
};

/// An array of points, stored by value.
class KESTRIN_TYPE CArrayPointD : public CArray<CPointD, CPointD&> {
 public:
  CArrayPointD() = default;
  CArrayPointD(const CArrayPointD& source) : CArray() { Copy(source); }
  KESTRIN_EXPORT CArrayPointD& operator=(const CArrayPointD& source);

  /// Returns a copy on the heap, which the caller owns.
  [[nodiscard]] KESTRIN_EXPORT virtual CArrayPointD* clone() const;

  /// If the archive is storing, writes the number of points, then x and y of each. Otherwise replaces the
  /// points with those of the archive; if the archive ends early, raises CArchiveException and leaves the
  /// points unchanged.
  KESTRIN_EXPORT void Serialize(CArchive& archive) override;
};

/// An array of pointers to point arrays. Copying clones the point arrays. Like every CExPtrArray, the array
/// deletes them only when you call one of its delete operations.
class KESTRIN_TYPE CArrayArrayPointD : public CExPtrArray<CArrayPointD*> {
 public:
  CArrayArrayPointD() = default;
  KESTRIN_EXPORT CArrayArrayPointD(const CArrayArrayPointD& source);
  CArrayArrayPointD& operator=(const CArrayArrayPointD&) = delete;

  /// Returns a copy on the heap, which the caller owns, with clones of the point arrays.
  [[nodiscard]] KESTRIN_EXPORT virtual CArrayArrayPointD* clone() const;
};

/// An array of pointers to points in space. Copying clones the points. Like every CExPtrArray, the array
/// deletes them only when you call one of its delete operations.
class KESTRIN_TYPE CArrayPoint3D : public CExPtrArray<CPoint3D*> {
 public:
  CArrayPoint3D() = default;
  KESTRIN_EXPORT CArrayPoint3D(const CArrayPoint3D& source);
  CArrayPoint3D& operator=(const CArrayPoint3D&) = delete;

  ///@{
  /// Compares the points pairwise with CPoint3D's operators; returns 1 for true, 0 for false. A null slot
  /// equals only a null slot. An array equals itself.
  KESTRIN_EXPORT virtual int operator==(const CArrayPoint3D& other) const;
  KESTRIN_EXPORT virtual int operator!=(const CArrayPoint3D& other) const;
  ///@}

  /// Returns a copy on the heap, which the caller owns, with clones of the points.
  [[nodiscard]] KESTRIN_EXPORT virtual CArrayPoint3D* clone() const;
};

}  // namespace kestrin
