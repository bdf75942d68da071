#include "kestrin/records/record_pool.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <memory>
#include <new>

#include "kestrin/base/huge_pages.h"

namespace kestrin {
namespace {

/// Slabs begin at multiples of their size, so a record's address tells its slab.
constexpr std::size_t kSlabSize = std::size_t{64} * 1024;

/// Blocks double from one slab up to this size: a small file takes little memory, a large one few blocks.
constexpr std::size_t kLargestBlock = 8 * kHugePage;

/// How much less than its nominal size a block takes. The heap's header for the next block fits into the gap,
/// so blocks can follow each other at multiples of their alignment.
constexpr std::size_t kHeapWords = 64;

/// The last slab of a block is the smallest.
constexpr std::size_t kSmallestSlab = kSlabSize - kHeapWords;

}  // namespace

/// The header of a slab; its records follow.
struct RecordPool::Slab {
  /// The first slab of a block of this size.
  explicit Slab(std::size_t size) : first(this), blockSize(size) {}
  /// A further slab of a block.
  explicit Slab(Slab& firstOfBlock) : first(&firstOfBlock) {}

  [[nodiscard]] static std::align_val_t AlignmentOf(std::size_t size) {
    return std::align_val_t{size < kHugePage ? kSlabSize : kHugePage};
  }
  [[nodiscard]] static Slab* MakeBlock(std::size_t size) {
    void* const memory = ::operator new(size, AlignmentOf(size));
    if (size >= kHugePage) PreferHugePages(memory, size);
    return std::construct_at(static_cast<Slab*>(memory), size);
  }
  [[nodiscard]] static Slab* Of(void* record) noexcept {
    const auto offset = reinterpret_cast<std::uintptr_t>(record) % kSlabSize;
    return std::launder(reinterpret_cast<Slab*>(static_cast<std::byte*>(record) - offset));
  }
  [[nodiscard]] std::byte* Begin() noexcept { return reinterpret_cast<std::byte*>(this); }
  [[nodiscard]] std::byte* Records() noexcept {
    static_assert(sizeof(Slab) % kStep == kPlace);
    return Begin() + sizeof(Slab);
  }

  /// Drops references to a block, of which this is the first slab, and frees it with the last.
  void Release(std::size_t count) noexcept {
    if (references.fetch_sub(count, std::memory_order_acq_rel) > count) return;
    ::operator delete(this, AlignmentOf(blockSize));
  }

  /// The references that the pool takes when it opens a block: more than a block can have records. So making
  /// a record need not touch the count, which other threads may be lowering; the pool returns what is unused
  /// when it closes the block.
  static constexpr std::size_t kHeldByPool = std::size_t{1} << 40;

  Slab* first;  // of the block
  std::size_t blockSize = 0;
  std::atomic<std::size_t> references{kHeldByPool};  // to the block; in its first slab only
};

/// Continues with the next slab of the block, or with a new block.
void RecordPool::OpenSlab() {
  if (static_cast<std::size_t>(blockEnd_ - end_) < kSmallestSlab) return OpenBlock();
  BeginSlab(*std::construct_at(reinterpret_cast<Slab*>(end_), *block_));
}

void RecordPool::BeginSlab(Slab& slab) {
  next_ = slab.Records();
  end_ = slab.Begin() + std::min(static_cast<std::size_t>(blockEnd_ - slab.Begin()), kSlabSize);
  MarkUnused(next_, static_cast<std::size_t>(end_ - next_));
}

void RecordPool::OpenBlock() {
  const std::size_t blockSize = block_ == nullptr ? kSlabSize : std::min(2 * blockSize_, kLargestBlock);
  const std::size_t size = blockSize - kHeapWords;
  Slab* const block = Slab::MakeBlock(size);
  CloseBlock();
  block_ = block;
  blockSize_ = blockSize;
  blockEnd_ = block->Begin() + size;
  BeginSlab(*block);
  if (notes_ != nullptr) notes_->OpenBlock(block, size);
}

void RecordPool::CloseBlock() noexcept {
  if (block_ != nullptr) block_->Release(Slab::kHeldByPool - std::exchange(made_, 0));
}

void* PooledRecord::operator new(std::size_t size) { return ::operator new(RecordPool::RoomFor(size)); }

void* PooledRecord::operator new(std::size_t size, const std::nothrow_t& tag) noexcept {
  return ::operator new(RecordPool::RoomFor(size), tag);
}

void PooledRecord::operator delete(void* record, std::size_t size) noexcept {
  if (!RecordPool::Made(record)) return ::operator delete(record);
  MarkUnused(record, size);
  RecordPool::Slab::Of(record)->first->Release(1);
}

void PooledRecord::operator delete(void* record, RecordPool& /*pool*/) noexcept {
  operator delete (record, std::size_t{0});
}

}  // namespace kestrin
