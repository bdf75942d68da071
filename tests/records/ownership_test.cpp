#include "kestrin/records/ownership.h"

#include <gtest/gtest.h>

#include <string>
#include <type_traits>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// A record that adds its name to a log when it is deleted.
template <class Parent = CObject>
class Logged : public Parent {
 public:
  Logged(const char* name, std::string& log) : name_(name), log_(log) {}
  Logged(const Logged&) = delete;
  Logged& operator=(const Logged&) = delete;
  ~Logged() override { log_ += name_; }

 private:
  std::string name_;
  std::string& log_;
};

template <class Parent = CObject>
Logged<Parent>* New(const char* name, std::string& log) {
  return std::make_unique<Logged<Parent>>(name, log).release();
}

class TwoLists : private OwnedLists<2> {
 public:
  TwoLists() { m_pMadeLast = MakeList(); }

  RecordArray<Logged<>>* m_pMadeLast = nullptr;
  RecordArray<Logged<>>* m_pMadeFirst = MakeList();
};

TEST(OwnedLists, DeleteTheirRecordsListByListInTheOrderInWhichTheyWereMade) {
  std::string deleted;
  {
    TwoLists record;
    record.m_pMadeLast->Add(New("last ", deleted));
    record.m_pMadeFirst->Add(New("first ", deleted));
    record.m_pMadeFirst->Add(nullptr);
    record.m_pMadeFirst->Add(New("second ", deleted));
    record.m_pMadeFirst = nullptr;  // the pointer is not the owner
  }
  EXPECT_EQ(deleted, "first second last ");
}

class TooManyLists : private OwnedLists<1> {
 public:
  RecordArray<Logged<>>* m_pFirst = MakeList();
  RecordArray<Logged<>>* m_pSecond = MakeList();
};

TEST(OwnedLists, RejectAListThatThereIsNoRoomFor) { EXPECT_THROW(TooManyLists(), std::logic_error); }

static_assert(!std::is_copy_constructible_v<CMTracesNET> && !std::is_copy_assignable_v<CMTracesNET>);
static_assert(!std::is_copy_constructible_v<CMNetInfo> && !std::is_copy_assignable_v<CMGeomBoard>);

TEST(SharedRoots, DeleteTheirRecordsWithTheLastCopy) {
  std::string deleted;
  {
    CMTech copy;
    {
      CMTech tech;
      tech.m_pPinArray->Add(New<CMTechPin>("pin ", deleted));
      tech.m_pViaArray->Add(New<CMTechVia>("via ", deleted));
      tech.m_pStackupArray->Add(New<CMTechStackUpOrder>("layer ", deleted));
      copy = tech;
      EXPECT_EQ(copy.m_pViaArray, tech.m_pViaArray);
    }
    EXPECT_EQ(copy.m_pStackupArray->GetSize(), 1);
    EXPECT_EQ(deleted, "");
  }
  EXPECT_EQ(deleted, "layer via pin ");

  deleted.clear();
  {
    CMGeom copy;
    {
      CMGeom geom;
      geom.m_pPanels->Add(New<CMGeomPanel>("panel ", deleted));
      geom.m_pStackup->m_pLayers->Add(std::make_unique<CMGeomLayerDEF>().release());
      copy = geom;
    }
    const CMGeomStackup stackup = *copy.m_pStackup;  // outlives the root and keeps the layers alive
    copy = CMGeom();
    EXPECT_EQ(deleted, "panel ");
    EXPECT_EQ(stackup.m_pLayers->GetSize(), 1);
  }
  EXPECT_EQ(deleted, "panel ");
}

}  // namespace
}  // namespace kestrin
