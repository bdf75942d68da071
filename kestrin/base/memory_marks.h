#pragma once

/// @file
/// Tells the address sanitizer, where there is one, which parts of a larger piece of memory are in use.

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

/// Whoever touches this memory from now on is at fault.
inline void MarkUnused([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) noexcept {
#ifdef KESTRIN_ADDRESS_SANITIZER
  __asan_poison_memory_region(memory, size);
#endif
}

/// The memory may be touched again.
inline void MarkUsed([[maybe_unused]] void* memory, [[maybe_unused]] std::size_t size) noexcept {
#ifdef KESTRIN_ADDRESS_SANITIZER
  __asan_unpoison_memory_region(memory, size);
#endif
}

}  // namespace kestrin
