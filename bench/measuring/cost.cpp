#include "bench/measuring/cost.h"

#include <malloc.h>
#include <sys/resource.h>

#include <ctime>
#include <limits>

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

rusage Usage() {
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  return usage;
}

double SystemSeconds(const rusage& usage) {
  return static_cast<double>(usage.ru_stime.tv_sec) + static_cast<double>(usage.ru_stime.tv_usec) * 1e-6;
}

/// The greatest resident memory so far. A process begins with that of the one that it is a copy of.
std::uint64_t PeakBytes(const rusage& usage) { return static_cast<std::uint64_t>(usage.ru_maxrss) * 1024; }

/// Leaves memory in the heap, which gives none of it back to the system.
void UseHeap(Work work, const Input& input) {
  mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
  mallopt(M_MMAP_MAX, 0);
  (void)work(input);
}

}  // namespace

Cost Measure(Work work, const Input& input, Heap heap) {
  return RunApart([&] {
    if (heap == Heap::kUsed) UseHeap(work, input);
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
    const double destructionStart = ProcessorSeconds();
    built.reset();
    const double destructionEnd = ProcessorSeconds();
    cost.destructionSeconds = destructionEnd - destructionStart;
    malloc_trim(0);  // joins free chunks, which freeing does at once or puts off, and gives back what it can
    cost.leftSeconds = ProcessorSeconds() - destructionEnd;
    return cost;
  });
}

}  // namespace kestrin::bench
