// kestrin_reader_bench: compares the readers with the yardsticks. Prints the results to standard output as
// tables in Markdown, and every run to standard error. Options, besides those of Google Benchmark:
//
//   --size=BYTES   the size of each file, and of the board; 25000000 by default
//   --check        only check that the plain C programs build the same models as the readers

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
#include "bench/report/medians.h"
#include "bench/report/tables.h"
#include "bench/works.h"

namespace kestrin::bench {
namespace {

struct Options {
  std::uint64_t size = 25'000'000;
  bool checksOnly = false;
};

/// Removes this program's options from the arguments; the rest are Google Benchmark's.
Options TakeOptions(std::vector<char*>& words) {
  constexpr std::string_view kSize = "--size=";
  Options options;
  std::erase_if(words, [&](const char* text) {
    const std::string_view word = text;
    if (word == "--check") return options.checksOnly = true;
    if (!word.starts_with(kSize)) return false;
    std::from_chars(word.data() + kSize.size(), word.data() + word.size(), options.size);
    return true;
  });
  return options;
}

/// Returns false if Google Benchmark does not know an option.
bool InitializeBenchmark(std::vector<char*> words) {
  // The runs are interleaved at random, so that other load on the machine affects all works alike. The user's
  // options come later and so have precedence.
  std::string interleaved = "--benchmark_enable_random_interleaving=true";
  std::string repeated = "--benchmark_repetitions=11";
  words.insert(words.begin() + 1, {interleaved.data(), repeated.data()});
  int count = static_cast<int>(words.size());
  benchmark::Initialize(&count, words.data());
  return !benchmark::ReportUnrecognizedArguments(count, words.data());
}

void Register(const NamedWork& work, const Input& input) {
  const std::string name = Medians::Name(work.kind, work.name);
  auto* registered = benchmark::RegisterBenchmark(name.c_str(), [&](benchmark::State& state) {
    for (auto _ : state) {
      const Cost cost = Measure(work.run, input);
      state.SetIterationTime(cost.seconds);
      state.counters = FiguresOf(cost, input);
    }
  });
  registered->UseManualTime()->Iterations(1)->Unit(benchmark::kMillisecond);
}

int Run(std::vector<char*> words) {
  const Options options = TakeOptions(words);
  if (!InitializeBenchmark(words)) return 2;
  const Inputs inputs(options.size);
  bool same = true;
  for (const Input& input : inputs.All()) {
    same = BuildTheSame(input) && same;
    for (const NamedWork& work : AllWorks()) {
      if (input.kind == work.kind) Register(work, input);
    }
  }
  if (!same || options.checksOnly) return same ? 0 : 1;
  Medians medians;
  benchmark::RunSpecifiedBenchmarks(&medians);
  WriteConditions(std::cout, inputs);
  WriteGoals(std::cout, medians);
  WriteFigures(std::cout, medians);
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
