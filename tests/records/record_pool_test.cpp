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

/// Makes most records in the pool and some on the heap, as hosts do.
Records MadeBy(RecordPool& pool, int count) {
  Records records;
  for (int i = 0; i < count; ++i) {
    records.push_back(i % 100 == 99 ? std::make_unique<Numbered>(i) : pool.Make<Numbered>(i));
  }
  return records;
}

TEST(RecordPool, RecordsOutliveItAndAreDeletedInAnyOrder) {
  constexpr int kCount = 50'000;
  Records records;
  {
    RecordPool pool;
    records = MadeBy(pool, kCount);
    EXPECT_EQ(pool.Make<Numbered>(7)->number, 7);  // deleted while the pool is still in use
  }
  for (int i = 0; i < kCount; ++i) EXPECT_EQ(records[static_cast<std::size_t>(i)]->number, i);
  std::shuffle(records.begin(), records.end(), std::mt19937(1));
  records.resize(kCount / 2);
}

TEST(RecordPool, RecordsAreDeletedOnOtherThreadsWhileMoreAreMade) {
  RecordPool pool;
  std::vector<std::thread> threads(4);
  for (std::thread& thread : threads) {
    thread = std::thread([records = MadeBy(pool, 20'000)]() mutable { records.clear(); });
  }
  for (std::thread& thread : threads) thread.join();
}

#ifdef KESTRIN_ADDRESS_SANITIZER
TEST(RecordPool, TheSanitizerReportsAccessToADeletedRecord) {
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

/// Creates and deletes a record in every way that the language allows.
template <class HostRecord>
void MakeAsHostsDo() {
  const auto isAligned = [](const HostRecord& record) {
    return reinterpret_cast<std::uintptr_t>(&record) % alignof(HostRecord) == 0 && record.number == 3;
  };
  const std::unique_ptr<HostRecord> plain(new HostRecord(3));
  EXPECT_TRUE(isAligned(*plain));
  const std::unique_ptr<HostRecord> nothrow(new (std::nothrow) HostRecord(3));
  EXPECT_TRUE(isAligned(*nothrow));
  const auto shared = std::make_shared<HostRecord>(3);
  EXPECT_TRUE(isAligned(*shared));
  alignas(HostRecord) std::array<std::byte, sizeof(HostRecord)> memory;
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the memory above owns it
  HostRecord* const placed = new (memory.data()) HostRecord(3);
  EXPECT_TRUE(isAligned(*placed));
  std::destroy_at(placed);
}

TEST(PooledRecord, HostsCanCreateItInEveryWay) {
  MakeAsHostsDo<Numbered>();
  MakeAsHostsDo<Aligned16>();
  MakeAsHostsDo<Aligned128>();
  EXPECT_THROW(std::make_unique<Failing>(), std::runtime_error);
  EXPECT_THROW(std::unique_ptr<Failing>(new (std::nothrow) Failing), std::runtime_error);
  RecordPool pool;
  EXPECT_THROW(static_cast<void>(pool.Make<Failing>()), std::runtime_error);
}

TEST(PooledRecord, TakesNoExtraMemoryIfAHostCreatesIt) {
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
