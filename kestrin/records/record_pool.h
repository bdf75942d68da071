#pragma once

/// @file
/// Where readers make their records.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "kestrin/base/memory_marks.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// An arena: makes records side by side, in the order of the calls. The records outlive the pool. A pool is
/// used by one thread at a time; meanwhile its records may be deleted on any thread.
class RecordPool {
 public:
  RecordPool() = default;
  RecordPool(const RecordPool&) = delete;
  RecordPool& operator=(const RecordPool&) = delete;
  ~RecordPool() { CloseBlock(); }

  template <class RECORD, class... Arguments>
  [[nodiscard]] std::unique_ptr<RECORD> Make(Arguments&&... arguments) {
    static_assert(alignof(RECORD) <= kPlace && sizeof(RECORD) <= kLargestRecord);
    return std::unique_ptr<RECORD>(new (*this) RECORD(std::forward<Arguments>(arguments)...));
  }

 private:
  friend class PooledRecord;
  struct Slab;

  [[nodiscard]] void* Allocate(std::size_t size) {
    const std::size_t room = RoomFor(size);
    if (static_cast<std::size_t>(end_ - next_) < room) OpenSlab();
    ++made_;
    MarkUsed(next_, size);
    return std::exchange(next_, next_ + room);
  }
  void OpenSlab();
  void OpenBlock();
  void BeginSlab(Slab& slab);
  void CloseBlock() noexcept;

  /// The heap aligns to 16 bytes. A pool's records are 8 bytes past such an address, so that the address of a
  /// record tells which of the two it came from.
  static constexpr std::size_t kStep = 16;
  static constexpr std::size_t kPlace = 8;
  static_assert(__STDCPP_DEFAULT_NEW_ALIGNMENT__ % kStep == 0);
  [[nodiscard]] static constexpr std::size_t RoomFor(std::size_t size) {
    return (size + kStep - 1) / kStep * kStep;
  }
  [[nodiscard]] static bool Made(const void* record) noexcept {
    return reinterpret_cast<std::uintptr_t>(record) % kStep == kPlace;
  }

  static constexpr std::size_t kLargestRecord = 4096;

  Slab* block_ = nullptr;      // the first slab of the block that records are made in
  std::size_t made_ = 0;       // records in the block
  std::size_t blockSize_ = 0;  // with what it leaves to the heap
  std::byte* blockEnd_ = nullptr;
  std::byte* next_ = nullptr;  // in the slab
  std::byte* end_ = nullptr;   // of the slab
};

inline void* PooledRecord::operator new(std::size_t size, RecordPool& pool) { return pool.Allocate(size); }

}  // namespace kestrin
