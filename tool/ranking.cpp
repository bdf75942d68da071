#include "tool/ranking.h"

#include <algorithm>
#include <cstddef>
#include <cstdio>

namespace kestrin::tool {

void PrintGreatest(std::vector<Ranked> rows, const char* nameHeading, const char* numberHeading) {
  constexpr std::size_t kShown = 10;
  std::stable_sort(rows.begin(), rows.end(),
                   [](const Ranked& a, const Ranked& b) { return a.number > b.number; });
  TextTable table({{numberHeading, TextTable::Align::kRight}, {nameHeading}});
  for (std::size_t i = 0; i < std::min(kShown, rows.size()); ++i) {
    table.AddRow({std::to_string(rows[i].number), rows[i].name});
  }
  table.Print();
  if (rows.size() > kShown) std::printf("  and %zu more\n", rows.size() - kShown);
}

}  // namespace kestrin::tool
