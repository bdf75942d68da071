#pragma once

/// @file
/// Measuring the cost of a work.

#include <cstdint>

#include "bench/measuring/work.h"

namespace kestrin::bench {

/// The cost of one run of a work. Times are processor times.
struct Cost {
  double seconds = 0.0;             ///< for building the model, in user and system mode
  double systemSeconds = 0.0;       ///< the part in system mode, most of it to supply memory
  double destructionSeconds = 0.0;  ///< for destroying the model and coalescing the free memory
  std::uint64_t allocations = 0;    ///< the number of allocations for building the model
  std::uint64_t peakBytes = 0;      ///< how much building the model raised the peak of resident memory
};

/// Runs a work once, in its own process, and measures it.
[[nodiscard]] Cost Measure(Work work, const Input& input);

}  // namespace kestrin::bench
