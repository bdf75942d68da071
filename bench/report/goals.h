#pragma once

/// @file
/// The goals that the readers are held to.

#include <optional>
#include <span>
#include <string_view>

#include "bench/report/results.h"

namespace kestrin::bench {

/// A figure of a kind of input; nothing where what it is made of was not run.
using Figure = std::optional<double> (*)(const Results& results, std::string_view kind);

// How many times a work takes the other's time.
std::optional<double> ReaderToNewlines(const Results& results, std::string_view kind);
std::optional<double> ReaderToFields(const Results& results, std::string_view kind);
std::optional<double> ReaderInUsedHeapToFields(const Results& results, std::string_view kind);
std::optional<double> PlainCToReader(const Results& results, std::string_view kind);
std::optional<double> PlainCppToReader(const Results& results, std::string_view kind);
std::optional<double> StrictReaderToReader(const Results& results, std::string_view kind);

enum class Bound : std::uint8_t { kAtMost, kAtLeast };

struct Goal {
  std::string_view kind;
  std::string_view text;
  Figure figure;
  Bound bound;
  double value;
};

[[nodiscard]] std::span<const Goal> AllGoals();

[[nodiscard]] inline bool IsReached(const Goal& goal, double figure) {
  return goal.bound == Bound::kAtMost ? figure <= goal.value : figure >= goal.value;
}

}  // namespace kestrin::bench
