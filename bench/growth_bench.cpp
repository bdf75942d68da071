// How long appending to a framework array takes: the time per element must not grow with the number of
// elements, though the capacity grows in steps of at most 1,024 slots.

#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <vector>

#include "kestrin/platform/array.h"
#include "kestrin/platform/string_array.h"

namespace {

using kestrin::CArray;

void CountElements(benchmark::State& state) { state.SetItemsProcessed(state.iterations() * state.range(0)); }

void AppendPointers(benchmark::State& state) {
  int record = 0;
  for (auto _ : state) {
    CArray<int*, int*> array;
    for (std::int64_t i = 0; i < state.range(0); ++i) array.SetAtGrow(array.GetSize(), &record);
    benchmark::DoNotOptimize(array.GetData());
  }
  CountElements(state);
}

/// As a reader does it: every pointer's record is allocated between two steps of growth.
void AppendAllocatedRecords(benchmark::State& state) {
  for (auto _ : state) {
    CArray<double*, double*> array;
    std::vector<std::unique_ptr<double>> records;
    records.reserve(static_cast<std::size_t>(state.range(0)));
    for (std::int64_t i = 0; i < state.range(0); ++i) {
      records.push_back(std::make_unique<double>());
      array.Add(records.back().get());
    }
    benchmark::DoNotOptimize(array.GetData());
  }
  CountElements(state);
}

void AppendStrings(benchmark::State& state) {
  const kestrin::CString text("short");
  for (auto _ : state) {
    kestrin::CStringArray array;
    for (std::int64_t i = 0; i < state.range(0); ++i) array.Add(text);
    benchmark::DoNotOptimize(array.GetData());
  }
  CountElements(state);
}

BENCHMARK(AppendPointers)->RangeMultiplier(10)->Range(1'000, 10'000'000)->Unit(benchmark::kMillisecond);
BENCHMARK(AppendAllocatedRecords)
    ->RangeMultiplier(10)
    ->Range(1'000, 10'000'000)
    ->Unit(benchmark::kMillisecond);
BENCHMARK(AppendStrings)->RangeMultiplier(10)->Range(1'000, 10'000'000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
