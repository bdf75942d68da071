#include <algorithm>

#include "tool/diff/values.h"
#include "tool/diff/wires.h"

namespace kestrin::tool {
namespace {

/// The lines of a text, without line feeds.
std::vector<std::string_view> LinesOf(std::string_view text) {
  std::vector<std::string_view> lines;
  for (std::size_t begin = 0; begin < text.size();) {
    const std::size_t end = text.find('\n', begin);
    lines.push_back(text.substr(begin, end - begin));
    begin = end + 1;
  }
  return lines;
}

/// How two wires with the same path differ. Of several legs or points, the first that differs is shown.
std::vector<Detail> DetailsOf(const Wire& before, const Wire& after) {
  std::vector<Detail> details;
  const auto compare = [&](const char* what, auto member) {
    for (std::size_t i = 0; i < before.legs; ++i) {
      const auto from = before.CopperAt(i).*member;
      const auto to = after.CopperAt(i).*member;
      if (from == to) continue;
      const auto valueOf = [](double number) { return number == 0.0 ? Value() : Value(number); };
      details.push_back({what, valueOf(from), valueOf(to)});
      return;
    }
  };
  compare("layer", &Copper::layer);
  compare("width", &Copper::width);
  const auto vias = LinesOf(before.Vias());
  const auto otherVias = LinesOf(after.Vias());
  const auto [via, otherVia] = std::mismatch(vias.begin(), vias.end(), otherVias.begin(), otherVias.end());
  if (via != vias.end()) details.push_back({"via", ValueOf(*via), ValueOf(*otherVia)});
  return details;
}

}  // namespace

void CompareWires(const Sides& sides, Difference& difference) {
  const MatchedWires wires = MatchWires(sides);
  for (std::size_t i = 0; i < wires.before.size(); ++i) {
    const Wire& wire = wires.before[i];
    if (wires.isExact[i] || !wire.match) continue;
    difference.changes.push_back(
        {ChangedKind::kWire, wire.net, ChangeType::kChanged, DetailsOf(wire, wires.after[*wire.match])});
  }
  ReportUnmatched(ChangedKind::kWire, sides, wires.before, wires.after, difference);
}

}  // namespace kestrin::tool
