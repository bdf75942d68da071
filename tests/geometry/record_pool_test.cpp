#include "kestrin/geometry/record_pool.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <random>
#include <thread>
#include <vector>

namespace kestrin {
namespace {

struct Numbered : PooledRecord {
  explicit Numbered(int value) : number(value) {}
  int number;
  double room[3] = {};
};

using Records = std::vector<std::unique_ptr<Numbered>>;

/// Mostly by the pool, some as hosts make them.
Records MadeBy(RecordPool& pool, int count) {
  Records records;
  for (int i = 0; i < count; ++i) {
    records.push_back(i % 100 == 99 ? std::make_unique<Numbered>(i) : pool.Make<Numbered>(i));
  }
  return records;
}

TEST(RecordPool, RecordsOutliveItAndEndInAnyOrder) {
  constexpr int kCount = 50'000;
  Records records;
  {
    RecordPool pool;
    records = MadeBy(pool, kCount);
    EXPECT_EQ(pool.Make<Numbered>(7)->number, 7);  // ends while the pool still makes records beside it
  }
  for (int i = 0; i < kCount; ++i) EXPECT_EQ(records[static_cast<std::size_t>(i)]->number, i);
  std::shuffle(records.begin(), records.end(), std::mt19937(1));
  records.resize(kCount / 2);
}

TEST(RecordPool, RecordsEndOnOtherThreadsWhileMoreAreMade) {
  RecordPool pool;
  std::vector<std::thread> threads(4);
  for (std::thread& thread : threads) {
    thread = std::thread([records = MadeBy(pool, 20'000)]() mutable { records.clear(); });
  }
  for (std::thread& thread : threads) thread.join();
}

#ifdef KESTRIN_ADDRESS_SANITIZER
TEST(RecordPool, TheSanitizerSeesWhoTouchesARecordThatHasEnded) {
  RecordPool pool;
  const auto kept = pool.Make<Numbered>(1);
  auto ended = pool.Make<Numbered>(2);
  const int& number = ended->number;
  ended.reset();
  EXPECT_DEATH(std::printf("%d", number), "use-after-poison");
  EXPECT_DEATH(std::printf("%d", kept.get()[2].number), "use-after-poison");  // never made
}
#endif

TEST(RecordPool, MakesRecordsSideBySide) {
  RecordPool pool;
  const auto first = pool.Make<Numbered>(1);
  const auto second = pool.Make<Numbered>(2);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(second.get()) - reinterpret_cast<std::uintptr_t>(first.get()),
            sizeof(Numbered));
}

}  // namespace
}  // namespace kestrin
