#include "bench/report/tables.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <string>
#include <thread>
#include <utility>

#include "bench/report/goals.h"
#include "bench/works.h"

namespace kestrin::bench {
namespace {

constexpr const char* kNothing = "–";

std::string Fixed(double value, int digits) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.*f", digits, value);
  return text.data();
}

std::string Fixed(std::optional<double> value, int digits) {
  return value ? Fixed(*value, digits) : kNothing;
}

std::string Today() {
  const std::time_t now = std::time(nullptr);
  std::array<char, 64> text{};
  std::strftime(text.data(), text.size(), "%Y-%m-%d", std::gmtime(&now));
  return text.data();
}

std::string Processor() {
  std::ifstream info("/proc/cpuinfo");
  for (std::string line; std::getline(info, line);) {
    if (line.starts_with("model name")) return line.substr(line.find(": ") + 2);
  }
  return "unknown processor";
}

std::string Compiler() {
#ifdef __clang__
  return "clang " __clang_version__;
#else
  return "g++ " __VERSION__;
#endif
}

}  // namespace

void WriteCircumstances(std::ostream& out) {
  out << Today() << ", " << Processor() << ", " << std::thread::hardware_concurrency() << " processors, "
      << Compiler() << ".\n\n";
}

void WriteInputs(std::ostream& out, const Results& results) {
  out << "Inputs:";
  const char* separator = " ";
  for (const auto& [kind, size] : results.Sizes()) {
    out << separator << kind << " " << Fixed(static_cast<double>(size.bytes) / 1e6, 1) << " MB, "
        << size.lines << " lines";
    separator = "; ";
  }
  out << ".\n\n";
}

void WriteCosts(std::ostream& out, const Results& results) {
  out << "| Input | Work | ns/line | of it system | MB/s | allocations per 1,000 lines | peak ÷ file | "
         "destroying, ns/line | left to the heap, ns/line | destroying ÷ building |\n"
         "|---|---|--:|--:|--:|--:|--:|--:|--:|--:|\n";
  for (const NamedWork& work : AllWorks()) {
    const std::optional<Cost> cost = results.Medians(work.kind, work.name);
    if (!cost) continue;
    const InputSize size = results.SizeOf(work.kind);
    const auto bytes = static_cast<double>(size.bytes);
    const double thousandLines = static_cast<double>(size.lines) / 1000.0;
    const auto perLine = [&](double seconds) { return Fixed(seconds * 1e6 / thousandLines, 1); };
    const bool builds = !BuildsNothing(work);
    const bool frees = builds && work.name != kPlainC;
    const bool hasPeak = builds && work.heap == Heap::kFresh;
    const std::string cells[] = {
        std::string(work.kind),
        std::string(work.name),
        perLine(cost->seconds),
        perLine(cost->systemSeconds),
        Fixed(bytes / cost->seconds / 1e6, 0),
        builds ? Fixed(static_cast<double>(cost->allocations) / thousandLines, 0) : kNothing,
        hasPeak ? Fixed(static_cast<double>(cost->peakBytes) / bytes, 2) : kNothing,
        frees ? perLine(cost->destructionSeconds) : kNothing,
        frees ? perLine(cost->leftSeconds) : kNothing,
        frees ? Fixed(cost->destructionSeconds / cost->seconds, 2) : kNothing,
    };
    for (const std::string& cell : cells) out << "| " << cell << " ";
    out << "|\n";
  }
  out << "\n";
}

void WriteRatios(std::ostream& out, const Results& results) {
  struct Column {
    const char* title;
    Figure figure;
    int digits;
  };
  constexpr Column kColumns[] = {
      {"reader ÷ newlines", &ReaderToNewlines, 1},           {"reader ÷ fields", &ReaderToFields, 2},
      {"the same, used heap", &ReaderInUsedHeapToFields, 2}, {"plain C ÷ reader", &PlainCToReader, 2},
      {"plain C++ ÷ reader", &PlainCppToReader, 2},          {"strict ÷ reader", &StrictReaderToReader, 2},
  };
  out << "| File |";
  for (const Column& column : kColumns) out << " " << column.title << " |";
  out << "\n|---|";
  for (std::size_t i = 0; i < std::size(kColumns); ++i) out << "--:|";
  out << "\n";
  for (const auto& [kind, size] : results.Sizes()) {
    if (kind == kBoard) continue;
    out << "| " << kind << " |";
    for (const Column& column : kColumns) {
      out << " " << Fixed(column.figure(results, kind), column.digits) << " |";
    }
    out << "\n";
  }
  out << "\n";
}

void WriteGoals(std::ostream& out, const Results& results) {
  out << "| Input | Figure | measured | goal | reached |\n|---|---|--:|--:|---|\n";
  for (const Goal& goal : AllGoals()) {
    const std::optional<double> figure = goal.figure(results, goal.kind);
    if (!figure) continue;
    const int digits = goal.value >= 100 ? 0 : 2;
    out << "| " << goal.kind << " | " << goal.text << " | " << Fixed(*figure, digits) << " | "
        << (goal.bound == Bound::kAtMost ? "≤ " : "≥ ") << Fixed(goal.value, digits) << " | "
        << (IsReached(goal, *figure) ? "yes" : "no") << " |\n";
  }
  out << "\n";
}

void WriteGrowth(std::ostream& out, const Results& results) {
  constexpr double kMostGrowth = 1.15;
  out << "| File | Lines | MB | ns/line | of it system | peak ÷ file | times the smallest | goal | reached "
         "|\n"
         "|---|--:|--:|--:|--:|--:|--:|--:|---|\n";
  std::string file;
  double smallest = 0.0;
  for (const auto& [kind, size] : results.Sizes()) {
    const std::optional<Cost> cost = results.Medians(kind, kReader);
    if (!cost) continue;
    const auto lines = static_cast<double>(size.lines);
    const auto bytes = static_cast<double>(size.bytes);
    const double perLine = cost->seconds * 1e9 / lines;
    const std::string thisFile = kind.substr(0, kind.find(' '));
    if (std::exchange(file, thisFile) != thisFile) smallest = perLine;
    const double growth = perLine / smallest;
    out << "| " << file << " | " << size.lines << " | " << Fixed(bytes / 1e6, 0) << " | " << Fixed(perLine, 1)
        << " | " << Fixed(cost->systemSeconds * 1e9 / lines, 1) << " | "
        << Fixed(static_cast<double>(cost->peakBytes) / bytes, 2) << " | " << Fixed(growth, 2) << " | ≤ "
        << Fixed(kMostGrowth, 2) << " | " << (growth <= kMostGrowth ? "yes" : "no") << " |\n";
  }
  out << "\n";
}

}  // namespace kestrin::bench
