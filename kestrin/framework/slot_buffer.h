#pragma once

/// @file
/// Memory for the framework's arrays.

#include <algorithm>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>

#include "kestrin/base/export.h"

namespace kestrin {

///@{
/// The limits of a computed growth step.
inline constexpr std::int64_t kSmallestStep = 4;
inline constexpr std::int64_t kGreatestStep = 1024;
///@}

/// The number of slots to allocate for a capacity.
///
/// The capacity that hosts see grows in steps of 4 to 1,024 slots. Reallocating at every step would cost a
/// small array many allocations and a large one quadratic time. So allocations are powers of two, above 64
/// slots also eighths of the way to the next, and most steps need no reallocation. A small array that does
/// not grow one element at a time gets exactly its capacity.
[[nodiscard]] constexpr std::int64_t AllocatedSlots(std::int64_t capacity) {
  constexpr std::int64_t kSmall = 64;
  constexpr std::int64_t kFirstTwo = 1 + kSmallestStep;  // growing by one element: 1, 5, 9, 13, ...
  const auto slots = static_cast<std::uint64_t>(capacity);
  if (capacity <= kFirstTwo) return capacity == 1 ? kFirstTwo : capacity;
  if (capacity <= kSmall) {
    return capacity % kSmallestStep == 1 ? static_cast<std::int64_t>(std::bit_ceil(slots)) : capacity;
  }
  const std::uint64_t granule = std::bit_floor(slots) / 8;
  return static_cast<std::int64_t>((slots + granule - 1) / granule * granule);
}

// NOLINTBEGIN(cppcoreguidelines-owning-memory,bugprone-sizeof-expression): slots are raw memory here, a slot
// may hold a pointer, and only realloc can grow in place.

/// The deleter of memory from malloc.
struct FreeMemory {
  /// Frees the memory. Null is allowed.
  void operator()(void* memory) const noexcept { std::free(memory); }
};

/// Moves slots to other memory. Elements whose move may throw are copied instead, so that the slots are
/// unchanged if it does.
template <class T>
void MoveSlots(T* slots, std::int64_t used, T* memory) {
  if constexpr (std::is_nothrow_move_constructible_v<T> || !std::is_copy_constructible_v<T>) {
    std::uninitialized_move_n(slots, used, memory);
  } else {
    std::uninitialized_copy_n(slots, used, memory);
  }
  std::destroy_n(slots, used);
}

/// Reallocates memory for count slots, in place if the allocator can, and keeps the first used slots. Throws
/// std::bad_alloc, or what copying an element throws; the old memory is then unchanged.
template <class T>
[[nodiscard]] T* ReallocateSlots(T* slots, std::int64_t used, std::int64_t count) {
  static_assert(alignof(T) <= alignof(std::max_align_t), "arrays have no over-aligned elements");
  if (static_cast<std::uint64_t>(count) > (std::numeric_limits<std::size_t>::max)() / 2 / sizeof(T)) {
    throw std::bad_alloc();
  }
  const std::size_t bytes = static_cast<std::size_t>(count) * sizeof(T);
  if constexpr (std::is_trivially_copyable_v<T>) {
    void* const memory = std::realloc(static_cast<void*>(slots), bytes);
    if (memory == nullptr) throw std::bad_alloc();
    return static_cast<T*>(memory);
  } else {
    std::unique_ptr<void, FreeMemory> memory(std::malloc(bytes));
    if (memory == nullptr) throw std::bad_alloc();
    MoveSlots(slots, used, static_cast<T*>(memory.get()));
    std::free(static_cast<void*>(slots));
    return static_cast<T*>(memory.release());
  }
}

/// Destroys the used slots and frees the memory.
template <class T>
void FreeSlots(T* slots, std::int64_t used) noexcept {
  std::destroy_n(slots, used);
  std::free(static_cast<void*>(slots));
}

// NOLINTEND(cppcoreguidelines-owning-memory,bugprone-sizeof-expression)

}  // namespace kestrin
