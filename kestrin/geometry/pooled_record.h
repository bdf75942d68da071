#pragma once

/// @file
/// Records by the million in little memory.

#include <cstddef>

#include "kestrin/platform/export.h"

namespace kestrin {

class RecordPool;

/// The base of the records that a file has most of. A reader makes them side by side in slabs of memory
/// rather than one by one on the heap; a slab is freed with the last of its records. For hosts nothing
/// differs: such a record is made with new and ends with delete, on any thread, in any order.
class PooledRecord {
 public:
  /// Memory for a record that is made outside a reader.
  [[nodiscard]] KESTRIN_EXPORT static void* operator new(std::size_t size);
  /// A record in memory of the host's, which only its destructor ends.
  [[nodiscard]] static void* operator new(std::size_t /*size*/, void* memory) noexcept { return memory; }
  /// Memory for a reader's record.
  [[nodiscard]] static void* operator new(std::size_t size, RecordPool& pool);
  ///@{
  /// Gives the memory of a record back.
  KESTRIN_EXPORT static void operator delete(void* record, std::size_t size) noexcept;
  static void operator delete(void* record, RecordPool& pool) noexcept;
  static void operator delete(void* /*record*/, void* /*memory*/) noexcept {}
  ///@}
};

}  // namespace kestrin
