#pragma once

/// @file
/// The figures that were measured, and their medians.

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/measuring/cost.h"

namespace kestrin::bench {

///@{
/// The name of a figure.
inline constexpr const char* kTime = "ns/line";
inline constexpr const char* kSystemTime = "of it system";
inline constexpr const char* kSpeed = "MB/s";
inline constexpr const char* kAllocations = "allocations per 1,000 lines";
inline constexpr const char* kPeak = "peak memory ÷ file";
inline constexpr const char* kDestroying = "destroying, ns/line";
///@}

/// Computes the figures of one run.
[[nodiscard]] benchmark::UserCounters FiguresOf(const Cost& cost, const Input& input);

/// Prints the runs to standard error as they finish, and keeps the median of every figure.
class Medians : public benchmark::ConsoleReporter {
 public:
  Medians();

  /// The name of a benchmark.
  [[nodiscard]] static std::string Name(std::string_view kind, std::string_view work);

  void ReportRuns(const std::vector<Run>& runs) override;

  /// The median of a figure; nothing if the work was not run.
  [[nodiscard]] std::optional<double> Find(std::string_view kind, std::string_view work,
                                           const char* figure) const;

 private:
  std::map<std::string, benchmark::UserCounters> figures_;
};

}  // namespace kestrin::bench
