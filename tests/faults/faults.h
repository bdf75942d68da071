#pragma once

/// @file
/// What a test program can let fail in itself. Its linker wraps the C functions; new is replaced.

#include <cstdint>
#include <limits>

namespace kestrin::test {

/// What the program took with new, malloc, calloc and realloc; what the C library takes for itself is not
/// seen.
struct Allocations {
  std::int64_t made = 0;
  std::int64_t alive = 0;
};
[[nodiscard]] Allocations AllocationsSoFar();

/// While it lives, allocations fail: the one that follows so many that succeed, or all from there on.
class FailingAllocations {
 public:
  enum class Which { kOne, kAllFromThere };
  FailingAllocations(std::int64_t succeeding, Which which);
  FailingAllocations(const FailingAllocations&) = delete;
  FailingAllocations& operator=(const FailingAllocations&) = delete;
  ~FailingAllocations();
};

/// While it lives, no file can be read beyond this many bytes from its start.
class FailingReads {
 public:
  explicit FailingReads(long readable);
  FailingReads(const FailingReads&) = delete;
  FailingReads& operator=(const FailingReads&) = delete;
  ~FailingReads();
};

}  // namespace kestrin::test
