#pragma once

/// @file
/// The arena in which readers allocate records.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>

#include "kestrin/base/memory_marks.h"
#include "kestrin/records/line_notes.h"
#include "kestrin/records/pooled_record.h"

namespace kestrin {

/// An arena for records: places them side by side in large blocks, in the order of the calls. That is faster
/// than the heap and costs no header per record. The records outlive the pool: a block counts its records and
/// is freed with the last. One thread at a time may use a pool; meanwhile any thread may delete its records.
class RecordPool {
 public:
  RecordPool() = default;
  RecordPool(const RecordPool&) = delete;
  RecordPool& operator=(const RecordPool&) = delete;
  ~RecordPool() { CloseBlock(); }

  template <class Record, class... Arguments>
  [[nodiscard]] std::unique_ptr<Record> Make(Arguments&&... arguments) {
    static_assert(alignof(Record) <= kPlace && sizeof(Record) <= kLargestRecord);
    return std::unique_ptr<Record>(new (*this) Record(std::forward<Arguments>(arguments)...));
  }

  /// Notes the line of every record from now on. To be called before the first is made; the notes must
  /// outlive the last.
  void NoteLines(LineNotes& notes) { notes_ = &notes; }
  /// Notes the line of what is not a record of the pool, if lines are noted.
  void NoteLineOf(const void* value) {
    if (notes_ != nullptr) notes_->AddValue(value);
  }

 private:
  friend class PooledRecord;
  struct Slab;

  [[nodiscard]] void* Allocate(std::size_t size) {
    const std::size_t room = RoomFor(size);
    if (static_cast<std::size_t>(end_ - next_) < room) OpenSlab();
    if (notes_ != nullptr) notes_->AddRecord(next_);
    ++made_;
    MarkUsed(next_, size);
    return std::exchange(next_, next_ + room);
  }
  void OpenSlab();
  void OpenBlock();
  void BeginSlab(Slab& slab);
  void CloseBlock() noexcept;

  /// The heap returns multiples of 16. A pool's records are at 8 past a multiple of 16, so delete can tell by
  /// the address where a record came from.
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

  Slab* block_ = nullptr;      // the first slab of the current block
  std::size_t made_ = 0;       // records made in the current block
  std::size_t blockSize_ = 0;  // of the current block, including kHeapWords
  std::byte* blockEnd_ = nullptr;
  std::byte* next_ = nullptr;   // the next free place in the current slab
  std::byte* end_ = nullptr;    // of the current slab
  LineNotes* notes_ = nullptr;  // null if lines are not noted
};

inline void* PooledRecord::operator new(std::size_t size, RecordPool& pool) { return pool.Allocate(size); }

}  // namespace kestrin
