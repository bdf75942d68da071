#include "kestrin/geometry/record_pool.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <new>

namespace kestrin {
namespace {

/// Slabs begin at multiples of this, so that a record's address tells its slab.
constexpr std::size_t kSlabSpacing = std::size_t{64} * 1024;

/// What a slab takes, unless for a larger record: so much less that the heap's own words fit in between.
constexpr std::size_t kSlabSize = kSlabSpacing - 64;

}  // namespace

/// What stands before a slab's records.
struct alignas(64) RecordPool::Slab {
  [[nodiscard]] static Slab* Make(std::size_t bytes) {
    return std::construct_at(static_cast<Slab*>(::operator new (bytes, std::align_val_t{kSlabSpacing})));
  }
  [[nodiscard]] static Slab* Of(void* record) noexcept {
    const auto offset = reinterpret_cast<std::uintptr_t>(record) % kSlabSpacing;
    return std::launder(reinterpret_cast<Slab*>(static_cast<std::byte*>(record) - offset));
  }
  [[nodiscard]] std::byte* Records() noexcept { return reinterpret_cast<std::byte*>(this + 1); }

  void LetGo(std::size_t count) noexcept {
    if (held.fetch_sub(count, std::memory_order_acq_rel) > count) return;
    ::operator delete (this, std::align_val_t{kSlabSpacing});
  }

  /// More than a slab ever has records: making one need not touch the count, which other threads may lower.
  static constexpr std::size_t kHeldByPool = kSlabSpacing;

  std::atomic<std::size_t> held{kHeldByPool};  // by its records, and by the pool while it makes more
};

void RecordPool::OpenSlab(std::size_t room) {
  const std::size_t size = std::max(kSlabSize, sizeof(Slab) + room);
  Slab* const slab = Slab::Make(size);
  CloseSlab();
  slab_ = slab;
  next_ = slab->Records();
  end_ = reinterpret_cast<std::byte*>(slab) + size;
}

void RecordPool::CloseSlab() noexcept {
  if (slab_ != nullptr) slab_->LetGo(Slab::kHeldByPool - std::exchange(made_, 0));
}

void* PooledRecord::operator new(std::size_t size) {
  auto* const slab = RecordPool::Slab::Make(sizeof(RecordPool::Slab) + size);
  slab->LetGo(RecordPool::Slab::kHeldByPool - 1);
  return slab->Records();
}

void* PooledRecord::operator new(std::size_t size, RecordPool& pool) { return pool.Allocate(size); }

void PooledRecord::operator delete(void* record) noexcept {
  if (record != nullptr) RecordPool::Slab::Of(record)->LetGo(1);
}

void PooledRecord::operator delete(void* record, RecordPool& /*pool*/) noexcept { operator delete(record); }

}  // namespace kestrin
