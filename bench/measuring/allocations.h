#pragma once

/// @file
/// Counting heap allocations.

#include <cstdint>

namespace kestrin::bench {

/// How often this program has called operator new, malloc, calloc and realloc. What the C library allocates
/// for itself is not counted. Single-threaded.
[[nodiscard]] std::uint64_t AllocationCount();

}  // namespace kestrin::bench
