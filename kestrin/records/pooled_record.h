#pragma once

/// @file
/// Records by the million in little memory.

#include <cstddef>
#include <new>

#include "kestrin/base/export.h"

namespace kestrin {

class RecordPool;

/// The base of the records that a file has most of. Readers make them in an arena: side by side in blocks of
/// up to 16 MiB, each of which is freed with the last of its records. Records that a host makes with new are
/// on the heap like any other object. Both end with delete, on any thread and in any order.
class PooledRecord {
 public:
  ///@{
  /// Memory for a record that a host makes.
  [[nodiscard]] KESTRIN_EXPORT static void* operator new(std::size_t size);
  [[nodiscard]] KESTRIN_EXPORT static void* operator new(std::size_t size,
                                                         const std::nothrow_t& tag) noexcept;
  ///@}
  ///@{
  /// The same for a derived class that asks for an alignment of its own.
  [[nodiscard]] static void* operator new(std::size_t size, std::align_val_t alignment) {
    return ::operator new(size, alignment);
  }
  [[nodiscard]] static void* operator new(std::size_t size, std::align_val_t alignment,
                                          const std::nothrow_t& tag) noexcept {
    return ::operator new(size, alignment, tag);
  }
  ///@}
  /// A record in memory of the host's, which only its destructor ends.
  [[nodiscard]] static void* operator new(std::size_t /*size*/, void* memory) noexcept { return memory; }
  /// Memory for a reader's record.
  [[nodiscard]] static void* operator new(std::size_t size, RecordPool& pool);

  ///@{
  /// Frees the memory of a record, whoever made it.
  KESTRIN_EXPORT static void operator delete(void* record, std::size_t size) noexcept;
  static void operator delete(void* record, std::size_t /*size*/, std::align_val_t alignment) noexcept {
    ::operator delete(record, alignment);
  }
  ///@}
  ///@{
  /// Called when a constructor throws.
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
