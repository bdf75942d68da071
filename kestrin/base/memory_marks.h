#pragma once

/// @file
/// Tells the address sanitizer which parts of a block are in use. In builds without it, nothing happens.

#include <cstddef>

#if defined(__SANITIZE_ADDRESS__)
#define KESTRIN_ADDRESS_SANITIZER
#elif defined(__has_feature)
#if __has_feature(address_sanitizer)
#define KESTRIN_ADDRESS_SANITIZER
#endif
#endif

#ifdef KESTRIN_ADDRESS_SANITIZER
#include <sanitizer/asan_interface.h>
#endif

namespace kestrin {

/// Poisons the range: the address sanitizer reports any access.
inline void MarkUnused([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) noexcept {
#ifdef KESTRIN_ADDRESS_SANITIZER
  __asan_poison_memory_region(memory, size);
#endif
}

/// Unpoisons the range: accesses are valid again.
inline void MarkUsed([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) noexcept {
#ifdef KESTRIN_ADDRESS_SANITIZER
  __asan_unpoison_memory_region(memory, size);
#endif
}

}  // namespace kestrin
