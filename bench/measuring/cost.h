#pragma once

/// @file
/// What a work costs.

#include <cstdint>

#include "bench/measuring/work.h"

namespace kestrin::bench {

/// The costs of one run of a work.
struct Cost {
  double seconds = 0.0;        ///< of the processor, until the model is built; the system's share included
  double systemSeconds = 0.0;  ///< the system's share of that, most of it for memory taken the first time
  double destructionSeconds =
      0.0;                        ///< until the model is destroyed and the heap has its free memory in order
  std::uint64_t allocations = 0;  ///< until the model is built
  std::uint64_t peakBytes = 0;    ///< of resident memory, above what was there before
};

/// Runs a work in a process of its own.
[[nodiscard]] Cost Measure(Work work, const Input& input);

}  // namespace kestrin::bench
