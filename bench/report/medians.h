#pragma once

/// @file
/// What was measured.

#include <benchmark/benchmark.h>

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/measuring/cost.h"

namespace kestrin::bench {

///@{
/// The figures of a work.
inline constexpr const char* kTime = "ns/line";
inline constexpr const char* kSystemTime = "of it system";
inline constexpr const char* kSpeed = "MB/s";
inline constexpr const char* kAllocations = "allocations per 1,000 lines";
inline constexpr const char* kPeak = "peak memory ÷ file";
inline constexpr const char* kDestroying = "destroying, ns/line";
///@}

/// The figures of one run.
[[nodiscard]] benchmark::UserCounters FiguresOf(const Cost& cost, const Input& input);

/// Shows the runs on standard error as they end, and keeps the median of every figure.
class Medians : public benchmark::ConsoleReporter {
 public:
  Medians();

  /// The name under which a work is run.
  [[nodiscard]] static std::string Name(std::string_view kind, std::string_view work);

  void ReportRuns(const std::vector<Run>& runs) override;

  /// Nothing where the work was not run.
  [[nodiscard]] std::optional<double> Find(std::string_view kind, std::string_view work,
                                           const char* figure) const;

 private:
  std::map<std::string, benchmark::UserCounters> figures_;
};

}  // namespace kestrin::bench
