#pragma once

/// @file
/// Counting heap allocations.

#include <cstdint>

namespace kestrin::bench {

/// How often this program has called operator new, malloc, calloc and realloc so far. Calls inside the C
/// library are not counted. For single-threaded programs.
[[nodiscard]] std::uint64_t AllocationCount();

}  // namespace kestrin::bench
