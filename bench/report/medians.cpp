#include "bench/report/medians.h"

#include <iostream>

namespace kestrin::bench {

benchmark::UserCounters FiguresOf(const Cost& cost, const Input& input) {
  const auto bytes = static_cast<double>(input.size);
  const auto lines = static_cast<double>(input.lines);
  return {{kTime, cost.seconds * 1e9 / lines},
          {kSystemTime, cost.systemSeconds * 1e9 / lines},
          {kSpeed, bytes / cost.seconds / 1e6},
          {kAllocations, static_cast<double>(cost.allocations) * 1e3 / lines},
          {kPeak, static_cast<double>(cost.peakBytes) / bytes},
          {kDestroying, cost.destructionSeconds * 1e9 / lines}};
}

Medians::Medians() : ConsoleReporter(OO_None) {
  SetOutputStream(&std::cerr);
  SetErrorStream(&std::cerr);
}

std::string Medians::Name(std::string_view kind, std::string_view work) {
  return std::string(kind).append("/").append(work);
}

void Medians::ReportRuns(const std::vector<Run>& runs) {
  ConsoleReporter::ReportRuns(runs);
  for (const Run& run : runs) {
    // The median is reported after its runs, and not at all for a single run.
    const bool isKept = run.run_type == Run::RT_Iteration || run.aggregate_name == "median";
    if (isKept) figures_[run.run_name.function_name] = run.counters;
  }
}

std::optional<double> Medians::Find(std::string_view kind, std::string_view work, const char* figure) const {
  const auto found = figures_.find(Name(kind, work));
  if (found == figures_.end()) return std::nullopt;
  return found->second.at(figure);
}

}  // namespace kestrin::bench
