#include "bench/works.h"

#include <benchmark/benchmark.h>

#include <cstdio>
#include <optional>

#include "bench/measuring/run_apart.h"
#include "bench/reader_works.h"
#include "bench/yardsticks/floors.h"
#include "bench/yardsticks/plain_c.h"

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
    {"traces", kReaderFromMemory, &ReadFromMemory<BuiltTraces>},
    {"traces", kStrictReader, &ReadTracesStrictly},
    {"traces", kReader, &ReadFromFile<BuiltTraces>},
    {"traces", kPlainC, &plain_c::ReadTraces},
    {"geometry", kNewlines, &FindNewlines},
    {"geometry", kFields, &ConvertFields},
    {"geometry", kReaderFromMemory, &ReadFromMemory<BuiltGeometry>},
    {"geometry", kReader, &ReadFromFile<BuiltGeometry>},
    {"geometry", kPlainC, &plain_c::ReadGeometry},
    {"neutral", kNewlines, &FindNewlines},
    {"neutral", kFields, &ConvertFields},
    {"neutral", kReaderFromMemory, &ReadFromMemory<BuiltNeutral>},
    {"neutral", kReader, &ReadFromFile<BuiltNeutral>},
    {"tech", kNewlines, &FindNewlines},
    {"tech", kFields, &ConvertFields},
    {"tech", kReaderFromMemory, &ReadFromMemory<BuiltTech>},
    {"tech", kReader, &ReadFromFile<BuiltTech>},
    {kBoard, kImport, &ImportBoard},
    {kBoard, kImportAndBoard, &ImportAndReadBoard},
    {kBoard, kImportWithDialog, &ImportBoardWithDialog},
};

}  // namespace

std::span<const NamedWork> AllWorks() { return kWorks; }

bool BuildTheSame(const Input& input) {
  bool same = true;
  std::optional<Tally> first;
  for (const NamedWork& work : kWorks) {
    if (work.kind != input.kind || !BuildsModel(work)) continue;
    const Tally tally = RunApart([&] { return work.run(input)->Count(); });
    if (!first) first = tally;
    if (tally == *first) continue;
    std::fprintf(stderr, "%s, %s: %llu records, numbers %llx; not as others\n", input.kind.c_str(),
                 work.name.data(), static_cast<unsigned long long>(tally.records),
                 static_cast<unsigned long long>(tally.numbers));
    same = false;
  }
  return same;
}

}  // namespace kestrin::bench
