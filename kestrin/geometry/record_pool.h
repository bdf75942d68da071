#pragma once

/// @file
/// Where readers make their records.

#include <cstddef>
#include <memory>
#include <utility>

#include "kestrin/geometry/pooled_record.h"

namespace kestrin {

/// Makes pooled records, in the order of the calls side by side. The records outlive the pool. A pool is used
/// by one thread at a time; its records may go on any thread meanwhile.
class RecordPool {
 public:
  RecordPool() = default;
  RecordPool(const RecordPool&) = delete;
  RecordPool& operator=(const RecordPool&) = delete;
  ~RecordPool() { CloseSlab(); }

  template <class RECORD, class... Arguments>
  [[nodiscard]] std::unique_ptr<RECORD> Make(Arguments&&... arguments) {
    static_assert(alignof(RECORD) <= kAlignment);
    return std::unique_ptr<RECORD>(new (*this) RECORD(std::forward<Arguments>(arguments)...));
  }

 private:
  friend class PooledRecord;
  struct Slab;

  [[nodiscard]] void* Allocate(std::size_t size) {
    const std::size_t room = (size + kAlignment - 1) / kAlignment * kAlignment;
    if (static_cast<std::size_t>(end_ - next_) < room) OpenSlab(room);
    ++made_;
    return std::exchange(next_, next_ + room);
  }
  void OpenSlab(std::size_t room);
  void CloseSlab() noexcept;

  static constexpr std::size_t kAlignment = alignof(double);

  Slab* slab_ = nullptr;  // the one that records are made in
  std::size_t made_ = 0;  // records in it
  std::byte* next_ = nullptr;
  std::byte* end_ = nullptr;
};

}  // namespace kestrin
