#include "bench/measuring/cost.h"

#include <sys/resource.h>

#include <ctime>

#include "bench/measuring/allocations.h"
#include "bench/measuring/run_apart.h"

namespace kestrin::bench {
namespace {

/// Time of the processor, not of the wall: on a shared machine others take the processor away.
double ProcessorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

std::uint64_t PeakBytes() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return static_cast<std::uint64_t>(usage.ru_maxrss) * 1024;
}

}  // namespace

Cost Measure(Work work, const Input& input) {
  return RunApart([&] {
    Cost cost;
    const std::uint64_t peakBefore = PeakBytes();
    const std::uint64_t allocationsBefore = AllocationCount();
    const double start = ProcessorSeconds();
    std::unique_ptr<Built> built = work(input);
    const double end = ProcessorSeconds();
    cost.seconds = end - start;
    cost.allocations = AllocationCount() - allocationsBefore;
    cost.peakBytes = PeakBytes() - peakBefore;
    built.reset();
    cost.destructionSeconds = ProcessorSeconds() - end;
    return cost;
  });
}

}  // namespace kestrin::bench
