// kestrin_reader_bench: measures the readers beside the yardsticks and writes the results to standard output,
// as tables in Markdown. What Google Benchmark says under way goes to standard error; its options are taken
// too.
//
//   --size=BYTES   of every file and of the board; 25000000 unless it is said
//   --check        only looks whether the yardsticks build what the readers build

#include <benchmark/benchmark.h>

#include <charconv>
#include <cstdio>
#include <exception>
#include <fstream>
#include <iostream>
#include <list>
#include <string>
#include <string_view>
#include <vector>

#include "bench/generators.h"
#include "bench/measuring/cost.h"
#include "bench/report/results.h"
#include "bench/report/tables.h"
#include "bench/works.h"
#include "bench/yardsticks/newlines.h"
#include "tests/support/temporary_folder.h"

namespace kestrin::bench {
namespace {

/// What the works of a kind read. The bytes are in memory of exactly their size, which is never let go, so
/// that the heap is as a fresh program has it.
struct Prepared {
  std::string_view kind;
  std::string bytes;
  Input input;
  InputSize size;
};

std::string ContentOf(const std::string& path) {
  std::ifstream file(path, std::ios::binary | std::ios::ate);
  std::string bytes(static_cast<std::size_t>(file.tellg()), '\0');
  file.seekg(0).read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  return bytes;
}

Prepared PrepareFile(const GeneratedFile& file, const std::string& path, std::uint64_t size) {
  if (!WriteGenerated(file, path, size)) throw std::runtime_error(path + ": cannot be written");
  Prepared prepared{
      .kind = file.kind, .bytes = ContentOf(path), .input = {.path = path, .bytes = {}}, .size = {}};
  prepared.size = {prepared.bytes.size(), CountNewlines(prepared.bytes)};
  return prepared;
}

Prepared PrepareBoard(const std::string& folder, std::uint64_t size) {
  if (!GenerateBoard(folder, size)) throw std::runtime_error(folder + ": cannot be written");
  Prepared prepared{.kind = kBoard, .bytes = {}, .input = {.path = folder, .bytes = {}}, .size = {}};
  for (const GeneratedFile& file : kGeneratedFiles) {
    const std::string bytes = ContentOf(folder + "/board." + std::string(file.kind));
    prepared.size.bytes += bytes.size();
    prepared.size.lines += CountNewlines(bytes);
  }
  return prepared;
}

class ReaderBench {
 public:
  explicit ReaderBench(std::uint64_t size) {
    for (const GeneratedFile& file : kGeneratedFiles) {
      Add(PrepareFile(file, folder_.Path("single." + std::string(file.kind)), size));
    }
    Add(PrepareBoard(folder_.Path(), size));
  }

  [[nodiscard]] bool Check() const {
    bool same = true;
    for (const Prepared& prepared : inputs_) same = BuildTheSame(prepared.kind, prepared.input) && same;
    return same;
  }

  void Register() {
    for (const NamedWork& work : AllWorks()) {
      for (const Prepared& prepared : inputs_) {
        if (prepared.kind == work.kind) Register(work, prepared);
      }
    }
  }

  [[nodiscard]] const Results& Measured() const { return results_; }

 private:
  void Add(Prepared prepared) {
    Prepared& added = inputs_.emplace_back(std::move(prepared));
    added.input.bytes = added.bytes;
    results_.SetSize(added.kind, added.size);
  }

  void Register(const NamedWork& work, const Prepared& prepared) {
    const std::string name = std::string(work.kind) + "/" + std::string(work.name);
    benchmark::RegisterBenchmark(name.c_str(),
                                 [this, &work, &prepared](benchmark::State& state) {
                                   for (auto _ : state) {
                                     const Cost cost = Measure(work.run, prepared.input);
                                     state.SetIterationTime(cost.seconds);
                                     results_.Add(work.kind, work.name, cost);
                                     state.counters["destruction_s"] = cost.destructionSeconds;
                                     state.counters["allocations"] = static_cast<double>(cost.allocations);
                                     state.counters["peak_bytes"] = static_cast<double>(cost.peakBytes);
                                   }
                                   state.SetBytesProcessed(static_cast<std::int64_t>(prepared.size.bytes));
                                   state.SetItemsProcessed(static_cast<std::int64_t>(prepared.size.lines));
                                 })
        ->UseManualTime()
        ->Iterations(1)
        ->Unit(benchmark::kMillisecond);
  }

  test::TemporaryFolder folder_;
  std::list<Prepared> inputs_;  // whose bytes stay where they are
  Results results_;
};

struct Options {
  std::uint64_t size = 25'000'000;
  bool checksOnly = false;
};

/// Takes this program's options out of the words and leaves Google Benchmark's.
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

int Run(std::vector<char*> words) {
  // What is given later counts, so that these can be changed. The works take turns, by lot, so that what the
  // machine does meanwhile meets them all.
  std::string interleaved = "--benchmark_enable_random_interleaving=true";
  std::string repeated = "--benchmark_repetitions=11";
  words.insert(words.begin() + 1, {interleaved.data(), repeated.data()});
  const Options options = TakeOptions(words);
  int count = static_cast<int>(words.size());
  benchmark::Initialize(&count, words.data());
  if (benchmark::ReportUnrecognizedArguments(count, words.data())) return 2;

  ReaderBench bench(options.size);
  if (!bench.Check()) return 1;
  if (options.checksOnly) return 0;
  bench.Register();
  benchmark::ConsoleReporter console(benchmark::ConsoleReporter::OO_None);
  console.SetOutputStream(&std::cerr);
  console.SetErrorStream(&std::cerr);
  benchmark::RunSpecifiedBenchmarks(&console);
  WriteCircumstances(std::cout, bench.Measured());
  WriteGoals(std::cout, bench.Measured());
  WriteRatios(std::cout, bench.Measured());
  WriteCosts(std::cout, bench.Measured());
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
