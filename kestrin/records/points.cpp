#include "kestrin/records/points.h"

#include <memory>
#include <vector>

#include "kestrin/framework/archive.h"

namespace kestrin {
namespace {

/// Fills an empty array with clones of another array's elements. If this raises, the array stays empty.
template <class Element>
void CloneElements(CExPtrArray<Element*>& target, const CExPtrArray<Element*>& source) {
  std::vector<std::unique_ptr<Element>> clones;
  for (const Element* element : source) clones.emplace_back(element == nullptr ? nullptr : element->clone());
  target.SetSize(source.GetSize());
  for (std::int64_t i = 0; auto& clone : clones) target.SetAt(i++, clone.release());
}

bool Differ(const CPoint3D* a, const CPoint3D* b) {
  if (a == nullptr || b == nullptr) return a != b;
  return *a != *b;
}

}  // namespace

CPoint3D::~CPoint3D() = default;

int CPoint3D::operator==(const CPoint3D& other) const {
  return this == &other || (x == other.x && y == other.y && z == other.z) ? 1 : 0;
}

int CPoint3D::operator!=(const CPoint3D& other) const { return *this == other ? 0 : 1; }

CPoint3D* CPoint3D::clone() const { return std::make_unique<CPoint3D>(*this).release(); }

void CPoint3D::SetData(const double& newX, const double& newY, const double& newZ) {
  x = newX;
  y = newY;
  z = newZ;
}

void CPoint3D::GetData(double& outX, double& outY, double& outZ) const {
  outX = x;
  outY = y;
  outZ = z;
}

CArrayPointD& CArrayPointD::operator=(const CArrayPointD& source) {
  Copy(source);
  return *this;
}

CArrayPointD* CArrayPointD::clone() const { return std::make_unique<CArrayPointD>(*this).release(); }

void CArrayPointD::Serialize(CArchive& archive) {
  if (archive.IsStoring()) {
    archive.WriteCount(static_cast<std::uint64_t>(GetSize()));
    for (const CPointD& point : *this) {
      archive.WriteDouble(point.x);
      archive.WriteDouble(point.y);
    }
    return;
  }
  CArrayPointD loaded;  // grows as points arrive, so a corrupt count cannot exhaust memory
  for (std::uint64_t left = archive.ReadCount(); left > 0; --left) {
    const double x = archive.ReadDouble();
    const double y = archive.ReadDouble();
    CPointD point(x, y);
    loaded.Add(point);
  }
  Copy(loaded);
}

CArrayArrayPointD::CArrayArrayPointD(const CArrayArrayPointD& source) : CExPtrArray() {
  CloneElements<CArrayPointD>(*this, source);
}

CArrayArrayPointD* CArrayArrayPointD::clone() const {
  return std::make_unique<CArrayArrayPointD>(*this).release();
}

CArrayPoint3D::CArrayPoint3D(const CArrayPoint3D& source) : CExPtrArray() {
  CloneElements<CPoint3D>(*this, source);
}

int CArrayPoint3D::operator==(const CArrayPoint3D& other) const {
  if (this == &other) return 1;
  if (GetSize() != other.GetSize()) return 0;
  for (std::int64_t i = 0; i < GetSize(); ++i) {
    if (Differ(GetAt(i), other.GetAt(i))) return 0;
  }
  return 1;
}

int CArrayPoint3D::operator!=(const CArrayPoint3D& other) const { return *this == other ? 0 : 1; }

CArrayPoint3D* CArrayPoint3D::clone() const { return std::make_unique<CArrayPoint3D>(*this).release(); }

}  // namespace kestrin
