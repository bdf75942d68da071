// kestrin_reader_bench: measures the readers beside the yardsticks and writes the results to standard output,
// as tables in Markdown. What Google Benchmark says under way goes to standard error; its options are taken
// too.
//
//   --size=BYTES   of every file and of the board; 25000000 unless it is said
//   --growth       measures the readers over files of 10 MB, 100 MB and 1 GB instead
//   --check        only looks whether the yardsticks build what the readers build

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <exception>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

#include "bench/inputs.h"
#include "bench/measuring/cost.h"
#include "bench/report/results.h"
#include "bench/report/tables.h"
#include "bench/works.h"
#include "support/generators/generators.h"

namespace kestrin::bench {
namespace {

struct Options {
  std::uint64_t size = 25'000'000;
  bool growth = false;
  bool checksOnly = false;
};

/// Takes this program's options out of the words and leaves Google Benchmark's.
Options TakeOptions(std::vector<char*>& words) {
  constexpr std::string_view kSize = "--size=";
  Options options;
  std::erase_if(words, [&](const char* text) {
    const std::string_view word = text;
    if (word == "--growth") return options.growth = true;
    if (word == "--check") return options.checksOnly = true;
    if (!word.starts_with(kSize)) return false;
    std::from_chars(word.data() + kSize.size(), word.data() + word.size(), options.size);
    return true;
  });
  return options;
}

/// False where Google Benchmark does not know an option.
bool InitializeBenchmark(std::vector<char*> words, bool growth) {
  // The works take turns, by lot, so that whatever the machine does meanwhile meets them all. What the user
  // says stands later, and counts.
  std::string interleaved = "--benchmark_enable_random_interleaving=true";
  std::string repeated = growth ? "--benchmark_repetitions=5" : "--benchmark_repetitions=11";
  words.insert(words.begin() + 1, {interleaved.data(), repeated.data()});
  int count = static_cast<int>(words.size());
  benchmark::Initialize(&count, words.data());
  return !benchmark::ReportUnrecognizedArguments(count, words.data());
}

void Register(const NamedWork& work, const Prepared& prepared, Results& results) {
  const std::string name = prepared.kind + "/" + std::string(work.name);
  auto* registered = benchmark::RegisterBenchmark(name.c_str(), [&](benchmark::State& state) {
    for (auto _ : state) {
      const Cost cost = Measure(work.run, prepared.input, work.heap);
      state.SetIterationTime(cost.seconds);
      results.Add(prepared.kind, work.name, cost);
      state.counters["destruction_s"] = cost.destructionSeconds;
      state.counters["allocations"] = static_cast<double>(cost.allocations);
      state.counters["peak_bytes"] = static_cast<double>(cost.peakBytes);
    }
    state.SetBytesProcessed(static_cast<std::int64_t>(prepared.size.bytes));
    state.SetItemsProcessed(static_cast<std::int64_t>(prepared.size.lines));
  });
  registered->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
}

void RunRegistered() {
  benchmark::ConsoleReporter console(benchmark::ConsoleReporter::OO_None);
  console.SetOutputStream(&std::cerr);
  console.SetErrorStream(&std::cerr);
  benchmark::RunSpecifiedBenchmarks(&console);
}

Results ResultsFor(const Inputs& inputs) {
  Results results;
  for (const Prepared& prepared : inputs.All()) results.AddInput(prepared.kind, prepared.size);
  return results;
}

/// The reader of every kind at every size.
void MeasureGrowth() {
  Inputs inputs;
  for (const std::string_view kind : {"traces", "geometry", "neutral"}) {
    for (const test::GeneratedFile& file : test::kGeneratedFiles) {
      if (file.kind != kind) continue;
      for (const unsigned megabytes : {10U, 100U, 1000U}) inputs.AddLargeFile(file, megabytes);
    }
  }
  Results results = ResultsFor(inputs);
  for (const Prepared& prepared : inputs.All()) {
    for (const NamedWork& work : AllWorks()) {
      if (work.name == kReader && prepared.kind.starts_with(work.kind)) Register(work, prepared, results);
    }
  }
  RunRegistered();
  WriteCircumstances(std::cout);
  WriteGrowth(std::cout, results);
}

/// Every work; false when the yardsticks do not build what the readers build.
bool MeasureAll(const Options& options) {
  Inputs inputs;
  for (const std::string_view kind : {"traces", "geometry", "neutral", "tech"}) {
    for (const test::GeneratedFile& file : test::kGeneratedFiles) {
      if (file.kind == kind) inputs.AddFile(file, options.size);
    }
  }
  inputs.AddBoard(options.size);
  bool same = true;
  for (const Prepared& prepared : inputs.All()) same = BuildTheSame(prepared.kind, prepared.input) && same;
  if (!same || options.checksOnly) return same;

  Results results = ResultsFor(inputs);
  for (const NamedWork& work : AllWorks()) {
    for (const Prepared& prepared : inputs.All()) {
      if (prepared.kind == work.kind) Register(work, prepared, results);
    }
  }
  RunRegistered();
  WriteCircumstances(std::cout);
  WriteInputs(std::cout, results);
  WriteGoals(std::cout, results);
  WriteRatios(std::cout, results);
  WriteCosts(std::cout, results);
  return true;
}

int Run(std::vector<char*> words) {
  const Options options = TakeOptions(words);
  if (!InitializeBenchmark(words, options.growth)) return 2;
  if (options.growth) {
    MeasureGrowth();
  } else if (!MeasureAll(options)) {
    return 1;
  }
  return std::cout.flush() ? 0 : 1;
}

}  // namespace
}  // namespace kestrin::bench

int main(int count, char** words) {
  try {
    return kestrin::bench::Run({words, words + count});
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
