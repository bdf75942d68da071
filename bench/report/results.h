#pragma once

/// @file
/// What was measured.

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "bench/measuring/cost.h"

namespace kestrin::bench {

/// The size of what the works of a kind read.
struct InputSize {
  std::uint64_t bytes = 0;
  std::uint64_t lines = 0;
};

/// The costs of all runs, by kind of input and work.
class Results {
 public:
  void AddInput(std::string_view kind, InputSize size) { sizes_.emplace_back(kind, size); }
  void Add(std::string_view kind, std::string_view work, const Cost& cost) {
    costs_[{std::string(kind), std::string(work)}].push_back(cost);
  }

  /// Every kind of input, in the order in which they were added.
  [[nodiscard]] const std::vector<std::pair<std::string, InputSize>>& Sizes() const { return sizes_; }
  [[nodiscard]] InputSize SizeOf(std::string_view kind) const;

  /// The median of every cost over the runs of a work; nothing when it was not run.
  [[nodiscard]] std::optional<Cost> Medians(std::string_view kind, std::string_view work) const;

 private:
  std::vector<std::pair<std::string, InputSize>> sizes_;
  std::map<std::pair<std::string, std::string>, std::vector<Cost>> costs_;
};

}  // namespace kestrin::bench
