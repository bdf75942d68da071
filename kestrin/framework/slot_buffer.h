#pragma once

/// @file
/// The memory behind a framework array.

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
/// The growth step of an array without one of its own.
inline constexpr std::int64_t kSmallestStep = 4;
inline constexpr std::int64_t kGreatestStep = 1024;
///@}

/// How many slots are really allocated behind a capacity. An array's capacity grows in steps of at least 4
/// and at most 1,024 slots; moving the slots at every such step would cost a small array many allocations and
/// a large one quadratic time. So the memory comes in powers of two, and beyond some slots in eighths of one,
/// and most steps find theirs already there. A small array that does not grow by single elements gets just
/// what it asks for.
[[nodiscard]] constexpr std::int64_t AllocatedSlots(std::int64_t capacity) {
  constexpr std::int64_t kSmall = 64;
  constexpr std::int64_t kFirstTwo = 1 + kSmallestStep;  // capacities of growth by one: 1, 5, 9, 13 ...
  const auto slots = static_cast<std::uint64_t>(capacity);
  if (capacity <= kFirstTwo) return capacity == 1 ? kFirstTwo : capacity;
  if (capacity <= kSmall) {
    return capacity % kSmallestStep == 1 ? static_cast<std::int64_t>(std::bit_ceil(slots)) : capacity;
  }
  const std::uint64_t granule = std::bit_floor(slots) / 8;
  return static_cast<std::int64_t>((slots + granule - 1) / granule * granule);
}

// NOLINTBEGIN(cppcoreguidelines-owning-memory,bugprone-sizeof-expression): here slots are raw memory, that of
// pointers is the size of pointers, and realloc is what grows in place.

/// Frees what malloc gave.
struct FreeMemory {
  /// Frees it; null is nothing.
  void operator()(void* memory) const noexcept { std::free(memory); }
};

/// Moves slots to other memory; those whose move may raise are copied, so that nothing has changed when it
/// does.
template <class T>
void MoveSlots(T* slots, std::int64_t used, T* memory) {
  if constexpr (std::is_nothrow_move_constructible_v<T> || !std::is_copy_constructible_v<T>) {
    std::uninitialized_move_n(slots, used, memory);
  } else {
    std::uninitialized_copy_n(slots, used, memory);
  }
  std::destroy_n(slots, used);
}

/// Moves the first used slots to memory for another number of slots and returns it; in place where the
/// allocator can. Raises std::bad_alloc or what copying a slot raises, and then nothing has moved.
template <class T>
[[nodiscard]] T* ReallocateSlots(T* slots, std::int64_t used, std::int64_t count) {
  static_assert(alignof(T) <= alignof(std::max_align_t), "arrays have no over-aligned elements");
  if (static_cast<std::uint64_t>(count) > std::numeric_limits<std::size_t>::max() / 2 / sizeof(T)) {
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
