#include "kestrin/records/record_pool.h"

#include <gtest/gtest.h>
#include <malloc.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <memory>
#include <new>
#include <random>
#include <stdexcept>
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

struct alignas(16) Aligned16 : Numbered {
  using Numbered::Numbered;
};
struct alignas(128) Aligned128 : Numbered {
  using Numbered::Numbered;
};
struct Failing : Numbered {
  Failing() : Numbered(0) { throw std::runtime_error("constructor"); }
};

/// Makes a record in each way that a language has, and deletes it.
template <class RECORD>
void MakeAsHostsDo() {
  const auto isAligned = [](const RECORD& record) {
    return reinterpret_cast<std::uintptr_t>(&record) % alignof(RECORD) == 0 && record.number == 3;
  };
  const std::unique_ptr<RECORD> plain(new RECORD(3));  // NOLINT(modernize-make-unique): this very operator
  EXPECT_TRUE(isAligned(*plain));
  const std::unique_ptr<RECORD> nothrow(new (std::nothrow) RECORD(3));
  EXPECT_TRUE(isAligned(*nothrow));
  const auto shared = std::make_shared<RECORD>(3);
  EXPECT_TRUE(isAligned(*shared));
  alignas(RECORD) std::array<std::byte, sizeof(RECORD)> memory;
  RECORD* const placed = new (memory.data()) RECORD(3);
  EXPECT_TRUE(isAligned(*placed));
  std::destroy_at(placed);
}

TEST(PooledRecord, HostsMakeItInEveryWayOfTheLanguage) {
  MakeAsHostsDo<Numbered>();
  MakeAsHostsDo<Aligned16>();
  MakeAsHostsDo<Aligned128>();
  EXPECT_THROW(std::make_unique<Failing>(), std::runtime_error);
  EXPECT_THROW(std::unique_ptr<Failing>(new (std::nothrow) Failing), std::runtime_error);
  RecordPool pool;
  EXPECT_THROW(static_cast<void>(pool.Make<Failing>()), std::runtime_error);
}

TEST(PooledRecord, TakesTheMemoryThatItNeedsWhenAHostMakesIt) {
  const auto record = std::make_unique<Numbered>(1);
  EXPECT_LE(malloc_usable_size(record.get()), 2 * sizeof(Numbered));
}

TEST(RecordPool, MakesRecordsSideBySide) {
  RecordPool pool;
  const auto first = pool.Make<Numbered>(1);
  const auto second = pool.Make<Numbered>(2);
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(second.get()) - reinterpret_cast<std::uintptr_t>(first.get()),
            sizeof(Numbered));
}

}  // namespace
}  // namespace kestrin
