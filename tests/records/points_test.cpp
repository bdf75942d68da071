#include "kestrin/records/points.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <sstream>

#include "kestrin/framework/archive.h"

namespace kestrin {
namespace {

/// An array of points that deletes them.
struct Points : CArrayPoint3D {
  Points(std::initializer_list<CPoint3D> points) {
    for (const CPoint3D& point : points) Add(point.clone());
  }
  Points(const Points&) = delete;
  Points& operator=(const Points&) = delete;
  ~Points() override { DeleteAll(); }
};

TEST(Points, CompareByTheirCoordinates) {
  const CPoint3D point(1, 2, 3);
  EXPECT_TRUE(point == CPoint3D(1, 2, 3));
  EXPECT_TRUE(point != CPoint3D(1, 2, std::nextafter(3.0, 4.0)));
  const CPoint3D nowhere(std::nan(""), 0, 0);
  EXPECT_TRUE(nowhere == nowhere);
  EXPECT_FALSE(nowhere == CPoint3D(nowhere));
  double x = 0, y = 0, z = 0;
  point.GetData(x, y, z);
  EXPECT_EQ(CPoint3D(x, y, z).GetZ(), 3);
  EXPECT_EQ(CPointD().GetX(), 0);
}

TEST(Points, ArraysCompareInOrder) {
  const Points points{{1, 2, 3}, {4, 5, 6}};
  EXPECT_TRUE(points == (Points{{1, 2, 3}, {4, 5, 6}}));
  EXPECT_TRUE(points != (Points{{4, 5, 6}, {1, 2, 3}}));
  EXPECT_TRUE(points != (Points{{1, 2, 3}}));
  const Points nowhere{{std::nan(""), 0, 0}};
  EXPECT_TRUE(nowhere == nowhere);
  EXPECT_TRUE(Points{} == Points{});
}

TEST(Points, ClonesAreDeep) {
  Points points{{1, 2, 3}};
  points.Add(nullptr);
  const std::unique_ptr<CArrayPoint3D> copy(points.clone());
  EXPECT_TRUE(*copy == points);
  points[0]->SetX(9);
  EXPECT_EQ(copy->GetAt(0)->GetX(), 1);
  copy->DeleteAll();

  CArrayArrayPointD lists;
  lists.Add(CArrayPointD().clone());
  CPointD point(7, 8);
  lists[0]->Add(point);
  const std::unique_ptr<CArrayArrayPointD> listsCopy(lists.clone());
  lists.DeleteAll();
  EXPECT_EQ(listsCopy->GetAt(0)->GetAt(0).GetY(), 8);
  listsCopy->DeleteAll();
}

TEST(Points, ArchiveHoldsCountAndCoordinates) {
  CArrayPointD points;
  points.SetSize(2);
  points[0].SetData(1.5, -2);
  std::stringstream bytes;
  CArchive storing(static_cast<std::ostream&>(bytes));
  points.Serialize(storing);
  ASSERT_EQ(bytes.str().size(), 2 + 2 * 16);
  EXPECT_EQ(bytes.str().substr(0, 10), std::string("\x02\0\0\0\0\0\0\0\xF8\x3F", 10));

  for (std::size_t length = 0; length < bytes.str().size(); ++length) {
    std::istringstream cut(bytes.str().substr(0, length));
    CArchive loading(cut);
    CArrayPointD target(points);
    EXPECT_THROW(target.Serialize(loading), CArchiveException);
    EXPECT_EQ(target.GetSize(), 2);
  }
  CArchive loading(static_cast<std::istream&>(bytes));
  CArrayPointD loaded;
  loaded.Serialize(loading);
  ASSERT_EQ(loaded.GetSize(), 2);
  EXPECT_EQ(loaded[0].GetX(), 1.5);
  EXPECT_EQ(loaded[0].GetY(), -2);
}

TEST(Points, ArchivesHoldCountsOfEverySize) {
  for (const std::uint64_t count : {0ULL, 0xFFFEULL, 0xFFFFULL, 0xFFFFFFFEULL, 0xFFFFFFFFULL, 1ULL << 40}) {
    std::stringstream bytes;
    CArchive(static_cast<std::ostream&>(bytes)).WriteCount(count);
    EXPECT_EQ(CArchive(static_cast<std::istream&>(bytes)).ReadCount(), count);
  }
}

}  // namespace
}  // namespace kestrin
