#include "bench/measuring/cost.h"

#include <malloc.h>
#include <sys/resource.h>

#include <ctime>

#include "bench/measuring/allocations.h"
#include "bench/measuring/run_apart.h"

namespace kestrin::bench {
namespace {

/// Processor time, because on a shared machine wall-clock time includes waiting for other processes.
double ProcessorSeconds() {
  timespec time{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
  return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

rusage Usage() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage;
}

double SystemSeconds(const rusage& usage) {
  return static_cast<double>(usage.ru_stime.tv_sec) + static_cast<double>(usage.ru_stime.tv_usec) * 1e-6;
}

/// The peak of resident memory so far. A forked process starts with the resident memory of its parent.
std::uint64_t PeakBytes(const rusage& usage) { return static_cast<std::uint64_t>(usage.ru_maxrss) * 1024; }

}  // namespace

Cost Measure(Work work, const Input& input) {
  return RunApart([&] {
    Cost cost;
    const rusage before = Usage();
    const std::uint64_t allocationsBefore = AllocationCount();
    const double start = ProcessorSeconds();
    std::unique_ptr<Built> built = work(input);
    const double end = ProcessorSeconds();
    const rusage after = Usage();
    cost.seconds = end - start;
    cost.systemSeconds = SystemSeconds(after) - SystemSeconds(before);
    cost.allocations = AllocationCount() - allocationsBefore;
    cost.peakBytes = PeakBytes(after) - PeakBytes(before);
    built.reset();
    malloc_trim(0);  // coalesces free memory, which the allocator otherwise does now or later
    cost.destructionSeconds = ProcessorSeconds() - end;
    return cost;
  });
}

}  // namespace kestrin::bench
