#include "bench/works.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <optional>
#include <string>

#include "bench/kestrin_works.h"
#include "bench/measuring/run_apart.h"
#include "bench/yardsticks/fields.h"
#include "bench/yardsticks/newlines.h"
#include "bench/yardsticks/plain_c.h"
#include "bench/yardsticks/plain_cpp.h"

namespace kestrin::bench {
namespace {

std::unique_ptr<Built> FindNewlines(const Input& input) {
  benchmark::DoNotOptimize(CountNewlines(input.bytes));
  return nullptr;
}

std::unique_ptr<Built> ConvertFields(const Input& input) {
  benchmark::DoNotOptimize(SumOfNumbers(input.bytes));
  return nullptr;
}

constexpr NamedWork kWorks[] = {
    {"traces", kNewlines, &FindNewlines},
    {"traces", kFields, &ConvertFields},
    {"traces", kReaderFromMemory, &ReadTracesFromMemory},
    {"traces", kReaderInUsedHeap, &ReadTracesFromMemory, Heap::kUsed},
    {"traces", kStrictReader, &ReadTracesStrictly},
    {"traces", kReader, &ReadTracesFromFile},
    {"traces", kPlainC, &plain_c::ReadTraces},
    {"traces", kPlainCpp, &plain_cpp::ReadTraces},
    {"geometry", kNewlines, &FindNewlines},
    {"geometry", kFields, &ConvertFields},
    {"geometry", kReaderFromMemory, &ReadGeometryFromMemory},
    {"geometry", kReaderInUsedHeap, &ReadGeometryFromMemory, Heap::kUsed},
    {"geometry", kReader, &ReadGeometryFromFile},
    {"geometry", kPlainC, &plain_c::ReadGeometry},
    {"geometry", kPlainCpp, &plain_cpp::ReadGeometry},
    {"neutral", kNewlines, &FindNewlines},
    {"neutral", kFields, &ConvertFields},
    {"neutral", kReaderFromMemory, &ReadNeutralFromMemory},
    {"neutral", kReaderInUsedHeap, &ReadNeutralFromMemory, Heap::kUsed},
    {"neutral", kReader, &ReadNeutralFromFile},
    {"neutral", kPlainC, &plain_c::ReadNeutral},
    {"neutral", kPlainCpp, &plain_cpp::ReadNeutral},
    {"tech", kNewlines, &FindNewlines},
    {"tech", kFields, &ConvertFields},
    {"tech", kReaderFromMemory, &ReadTechFromMemory},
    {"tech", kReaderInUsedHeap, &ReadTechFromMemory, Heap::kUsed},
    {"tech", kReader, &ReadTechFromFile},
    {"tech", kPlainC, &plain_c::ReadTech},
    {"tech", kPlainCpp, &plain_cpp::ReadTech},
    {kBoard, kImport, &ImportBoard},
    {kBoard, kImportWithDialog, &ImportBoardWithDialog},
};

}  // namespace

std::span<const NamedWork> AllWorks() { return kWorks; }

bool BuildTheSame(std::string_view kind, const Input& input) {
  bool same = true;
  std::optional<Tally> first;
  for (const NamedWork& work : kWorks) {
    if (work.kind != kind || BuildsNothing(work)) continue;
    const Tally tally = RunApart([&] { return work.run(input)->Count(); });
    if (!first) first = tally;
    if (tally == *first && tally.records > 0) continue;
    std::fprintf(stderr, "%s, %s: %llu records, %llu characters, coordinates %.17g; not as others\n",
                 std::string(kind).c_str(), std::string(work.name).c_str(),
                 static_cast<unsigned long long>(tally.records),
                 static_cast<unsigned long long>(tally.characters), tally.coordinates);
    same = false;
  }
  return same;
}

}  // namespace kestrin::bench
