#pragma once

/// @file
/// The base class of records that exist in large numbers.

#include <cstddef>
#include <new>

#include "kestrin/base/export.h"

namespace kestrin {

class RecordPool;

/// The base class of the records that files contain in large numbers. You use them like any object:
///
///     auto* pin = new CMRefPin;
///     net->m_pPins->Add(pin);  // the list deletes it
///
/// Records that you create with new are on the heap. Readers allocate theirs in an arena instead, which saves
/// time and memory: in blocks of up to 16 MiB, each freed when its last record is deleted. So a single record
/// that you keep from a model can keep 16 MiB alive. Either kind is freed with delete, on any thread and in
/// any order.
class PooledRecord {
 public:
  ///@{
  /// Allocates on the heap; used by new.
  [[nodiscard]] KESTRIN_EXPORT static void* operator new(std::size_t size);
  [[nodiscard]] KESTRIN_EXPORT static void* operator new(std::size_t size,
                                                         const std::nothrow_t& tag) noexcept;
  ///@}
  ///@{
  /// Allocates on the heap, for a derived class that specifies its own alignment.
  [[nodiscard]] static void* operator new(std::size_t size, std::align_val_t alignment) {
    return ::operator new(size, alignment);
  }
  [[nodiscard]] static void* operator new(std::size_t size, std::align_val_t alignment,
                                          const std::nothrow_t& tag) noexcept {
    return ::operator new(size, alignment, tag);
  }
  ///@}
  /// Constructs in memory that you supply. Destroy such a record with its destructor, not with delete.
  [[nodiscard]] static void* operator new(std::size_t /*size*/, void* memory) noexcept { return memory; }
  /// Allocates in a reader's arena.
  [[nodiscard]] static void* operator new(std::size_t size, RecordPool& pool);

  ///@{
  /// Frees the memory of a record, on the heap or in an arena.
  KESTRIN_EXPORT static void operator delete(void* record, std::size_t size) noexcept;
  static void operator delete(void* record, std::size_t /*size*/, std::align_val_t alignment) noexcept {
    ::operator delete(record, alignment);
  }
  ///@}
  ///@{
  /// Called if a constructor throws.
  static void operator delete(void* record, const std::nothrow_t& /*tag*/) noexcept {
    operator delete (record, std::size_t{0});
  }
  static void operator delete(void* record, std::align_val_t alignment,
                              const std::nothrow_t& /*tag*/) noexcept {
    ::operator delete(record, alignment);
  }
  static void operator delete(void* /*record*/, void* /*memory*/) noexcept {}
  static void operator delete(void* record, RecordPool& pool) noexcept;
  ///@}
};

}  // namespace kestrin
