#include "bench/report/tables.h"

#include <array>
#include <cstdio>
#include <ctime>
#include <fstream>
#include <thread>

#include "bench/report/goals.h"

namespace kestrin::bench {
namespace {

std::string Fixed(double value, int digits) {
  std::array<char, 64> text{};
  std::snprintf(text.data(), text.size(), "%.*f", digits, value);
  return text.data();
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

struct Column {
  const char* figure;
  int digits;
  bool ofModels;  // shown only for works that build a model
};

constexpr Column kColumns[] = {{kTime, 1, false},       {kSystemTime, 1, false}, {kSpeed, 0, false},
                               {kAllocations, 0, true}, {kPeak, 2, true},        {kDestroying, 1, true}};

}  // namespace

void WriteConditions(std::ostream& out, const Inputs& inputs) {
  out << Today() << ", " << Processor() << ", " << std::thread::hardware_concurrency() << " processors, "
      << Compiler() << ".\n\nInputs:";
  const char* separator = " ";
  for (const Input& input : inputs.All()) {
    out << separator << input.kind << " " << Fixed(static_cast<double>(input.size) / 1e6, 1) << " MB, "
        << input.lines << " lines";
    separator = "; ";
  }
  out << ".\n\n";
}

void WriteFigures(std::ostream& out, const Medians& medians) {
  out << "| Input | Work |";
  for (const Column& column : kColumns) out << " " << column.figure << " |";
  out << "\n|---|---|--:|--:|--:|--:|--:|--:|\n";
  for (const NamedWork& work : AllWorks()) {
    if (!medians.Find(work.kind, work.name, kTime)) continue;
    out << "| " << work.kind << " | " << work.name << " |";
    for (const Column& column : kColumns) {
      const bool isShown = BuildsModel(work) || !column.ofModels;
      const double value = medians.Find(work.kind, work.name, column.figure).value_or(0.0);
      out << " " << (isShown ? Fixed(value, column.digits) : "–") << " |";
    }
    out << "\n";
  }
  out << "\n";
}

void WriteGoals(std::ostream& out, const Medians& medians) {
  out << "| Input | Figure | measured | goal |\n|---|---|--:|--:|\n";
  for (const Goal& goal : kGoals) {
    const auto dividend = medians.Find(goal.kind, goal.dividend.work, goal.dividend.figure);
    const auto divisor =
        goal.divisor ? medians.Find(goal.kind, goal.divisor->work, goal.divisor->figure) : 1.0;
    if (!dividend || !divisor) continue;
    out << "| " << goal.kind << " | " << goal.text << " | " << Fixed(*dividend / *divisor, 2) << " | "
        << goal.bound << " |\n";
  }
  out << "\n";
}

}  // namespace kestrin::bench
