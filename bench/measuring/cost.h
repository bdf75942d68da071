#pragma once

/// @file
/// What a work costs.

#include <cstdint>

#include "bench/measuring/work.h"

namespace kestrin::bench {

/// The costs of one run of a work.
struct Cost {
  double seconds = 0.0;        ///< of the processor, the system's share included, until the model is built
  double systemSeconds = 0.0;  ///< the system's share of that, most of it for memory taken the first time
  double destructionSeconds = 0.0;  ///< until it is destroyed
  double leftSeconds = 0.0;         ///< of what the heap then has to do until its free memory is in order
  std::uint64_t allocations = 0;    ///< until it is built
  std::uint64_t peakBytes = 0;      ///< of resident memory, above what was there before
};

/// Where a work takes its memory from.
enum class Heap : std::uint8_t {
  kFresh,  ///< from the system, as an import in a program that has just begun
  kUsed,   ///< what the same work has used and given back before, so that the system has no part in it
};

/// Runs a work in a process of its own.
[[nodiscard]] Cost Measure(Work work, const Input& input, Heap heap);

}  // namespace kestrin::bench
