#include "kestrin/geometry/ownership.h"

#include <gtest/gtest.h>

namespace kestrin {
namespace {

struct Counted {
  explicit Counted(int& count) : alive(count) { ++alive; }
  Counted(const Counted&) = delete;
  Counted& operator=(const Counted&) = delete;
  ~Counted() { --alive; }
  int& alive;
};

TEST(RecordList, SwapExchangesRecordsWithoutTouchingThem) {
  int alive = 0;
  {
    RecordList<Counted> kept;
    {
      RecordList<Counted> built;
      const Counted* first = built->Append(std::make_unique<Counted>(alive));
      built->Append(std::make_unique<Counted>(alive));
      kept->Append(std::make_unique<Counted>(alive));
      kept->Swap(*built);
      EXPECT_EQ(kept->GetAt(0), first);
      EXPECT_EQ(built->GetSize(), 1);
    }
    EXPECT_EQ(alive, 2);
    kept->Append(std::make_unique<Counted>(alive));
  }
  EXPECT_EQ(alive, 0);
}

}  // namespace
}  // namespace kestrin
