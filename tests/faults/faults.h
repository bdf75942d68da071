#pragma once

/// @file
/// Making allocations and reads of the test program fail. The linker wraps the C functions; operator new is
/// replaced.

#include <cstdint>
#include <limits>

namespace kestrin::test {

/// The number of allocations by new, malloc, calloc and realloc. Those inside the C library are not counted.
struct Allocations {
  std::int64_t made = 0;
  std::int64_t alive = 0;
};
[[nodiscard]] Allocations AllocationsSoFar();

/// Makes allocations fail as long as it exists. A number of allocations succeed first; then one fails, or
/// all.
class FailingAllocations {
 public:
  enum class Which { kOne, kAllFromThere };
  FailingAllocations(std::int64_t succeeding, Which which);
  FailingAllocations(const FailingAllocations&) = delete;
  FailingAllocations& operator=(const FailingAllocations&) = delete;
  ~FailingAllocations();
};

/// Makes reads fail as long as it exists: only the first bytes of each file can be read.
class FailingReads {
 public:
  explicit FailingReads(long readable);
  FailingReads(const FailingReads&) = delete;
  FailingReads& operator=(const FailingReads&) = delete;
  ~FailingReads();
};

}  // namespace kestrin::test
