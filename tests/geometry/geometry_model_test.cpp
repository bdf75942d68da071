#include "kestrin/geometry/geometry_model.h"

#include <gtest/gtest.h>

#include <memory>

#include "kestrin/geometry/geometry_reader.h"
#include "support/described.h"
#include "tests/support/feed.h"

namespace kestrin {
namespace {

using test::Described;
using test::InitialFieldsOf;

TEST(GeometryModel, BeginsEmptyWithItsDefaults) {
  EXPECT_EQ(InitialFieldsOf<CMGeom>(), "");
  EXPECT_EQ(InitialFieldsOf<CMGeomBoard>(), "");
  EXPECT_EQ(InitialFieldsOf<CMGeomComponent>(), "layoutSurface=both");
  EXPECT_EQ(InitialFieldsOf<CMGeomPin>(), "terminalType=1");
  EXPECT_EQ(InitialFieldsOf<CMGeomVia>(), "");
  EXPECT_EQ(InitialFieldsOf<CMGeomText>(), "8=(1 0.01 std)");
  EXPECT_EQ(InitialFieldsOf<CMGeomAdd>(), "");
  EXPECT_EQ(Described(CMGeomPath()), "LINE{}");
  EXPECT_EQ(Described(CMGeomPolygon()), "POLYGON{}");
  EXPECT_EQ(Described(CMGeomArc()), "ARC{}");
  EXPECT_EQ(Described(CMGeomCircle()), "CIRCLE{}");
}

TEST(GeometryModel, DrawingObjectsAreDeletedWithTheirArray) {
  int deleted = 0;
  struct Counted : CMGeomPath {
    explicit Counted(int& count) : count_(count) {}
    ~Counted() override { ++count_; }
    int& count_;
  };
  {
    CMGeomDrawObjArray array;
    CArray<CMGeomDrawObj*, CMGeomDrawObj*>* seenByHosts = &array;
    array.Add(std::make_unique<Counted>(deleted).release());
    seenByHosts->Add(nullptr);
    array.Add(std::make_unique<Counted>(deleted).release());
  }
  EXPECT_EQ(deleted, 2);
}

TEST(GeometryModel, CopiesShareTheirRecords) {
  CMGeom copy;
  CMGeomStackup stackup;
  CMGeomLayerDEF layer;
  {
    CMGeom geom;
    GeometryReader reader(geom);
    test::Feed(reader,
               "$$create_stackup(S)\n$$attribute(LAYER_DEFINITION, 1)\n$$create_panel(P)\n$$text(L)\n"
               "$$circle(C)\n$$create_board(B)\n$$attribute(ROUTING_KEEPOUT, K, [1, 2])\n");
    copy = CMGeom(geom);
    stackup = *geom.m_pStackup;
    layer = *stackup.m_pLayers->GetAt(0);
    EXPECT_EQ(copy.m_pPanels->GetAt(0), geom.m_pPanels->GetAt(0));
  }
  EXPECT_EQ(Described(copy),
            "board{name=B routingKeepout{name=K coords=[1 2]}} stackup{name=S LAYER_DEFINITION{values=[1]}} "
            "panel{name=P CIRCLE{layer=C} text{layer=L}}");
  EXPECT_EQ(Described(stackup), Described(*copy.m_pStackup));
  EXPECT_EQ(Described(layer), "LAYER_DEFINITION{values=[1]}");
}

}  // namespace
}  // namespace kestrin
