#include "tool/diff/values.h"
#include "tool/diff/wires.h"

namespace kestrin::tool {
namespace {

/// The names of vias in the text of a wire, without the points that have none.
std::string ViaNames(std::string_view vias) {
  std::string names;
  for (std::size_t begin = 0; begin < vias.size();) {
    const std::size_t end = vias.find('\n', begin);
    if (end > begin) names += (names.empty() ? "" : ", ") + std::string(vias.substr(begin, end - begin));
    begin = end + 1;
  }
  return names;
}

/// How two wires with the same path differ. Of several legs, the first that differs is shown.
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
  if (before.Vias() != after.Vias())
    CompareValue(details, "via", ViaNames(before.Vias()), ViaNames(after.Vias()));
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
  ReportUnmatched(ChangedKind::kWire, wires.before, wires.after, difference);
}

}  // namespace kestrin::tool
