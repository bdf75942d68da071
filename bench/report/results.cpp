#include "bench/report/results.h"

#include <algorithm>

namespace kestrin::bench {
namespace {

template <class VALUE>
VALUE Median(const std::vector<Cost>& costs, VALUE Cost::*value) {
  std::vector<VALUE> values;
  values.reserve(costs.size());
  for (const Cost& cost : costs) values.push_back(cost.*value);
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace

InputSize Results::SizeOf(std::string_view kind) const {
  for (const auto& [name, size] : sizes_) {
    if (name == kind) return size;
  }
  return {};
}

std::optional<Cost> Results::Medians(std::string_view kind, std::string_view work) const {
  const auto found = costs_.find({std::string(kind), std::string(work)});
  if (found == costs_.end()) return std::nullopt;
  return Cost{.seconds = Median(found->second, &Cost::seconds),
              .systemSeconds = Median(found->second, &Cost::systemSeconds),
              .destructionSeconds = Median(found->second, &Cost::destructionSeconds),
              .leftSeconds = Median(found->second, &Cost::leftSeconds),
              .allocations = Median(found->second, &Cost::allocations),
              .peakBytes = Median(found->second, &Cost::peakBytes)};
}

}  // namespace kestrin::bench
