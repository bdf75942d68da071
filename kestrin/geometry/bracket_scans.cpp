#include "kestrin/geometry/bracket_scans.h"

#include "kestrin/text/contains.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

/// Returns whether a "[" was found.
bool Scan(ValueCut values, const BracketScan& scan, std::vector<double>& numbers) {
  const auto append = [&](const PointValue& value, bool emptyIsZero) {
    if (emptyIsZero || !value.isEmpty) numbers.push_back(value.number);
  };
  return ScanPoints([&] { return NextPointValue(values); }, scan, append);
}

}  // namespace

void ReadPoints(const ValueCut& values, const BracketScan& scan, const PendingPoints& pending,
                std::vector<double>& numbers) {
  numbers.clear();
  if (Scan(values, scan, numbers)) return;
  for (const PendingValue& value : pending.Values()) {
    if (scan.emptyPendingIsZero || !value.isEmpty) numbers.push_back(value.number);
  }
}

BracketedPoint ReadPoint(ValueCut values, const PendingPoints& pending) {
  std::optional<double> x;
  std::optional<double> y;
  while (!x || !y) {
    const auto value = NextPointValue(values);
    if (!value) break;
    if (value->bracket == Bracket::kOpening && !x) x = value->number;
    if (value->bracket == Bracket::kClosing && !y) y = value->number;
  }
  BracketedPoint point{x.value_or(0.0), y.value_or(0.0)};
  if (!x) {
    pending.CopyTo(1, point.x);
    pending.CopyTo(2, point.y);
  }
  return point;
}

std::optional<std::string_view> FirstBracketed(Values& values) {
  for (std::size_t number = 2; values.HasAtLeast(number); ++number) {
    const std::string_view value = values[number];
    if (Contains(value, '[')) return WithoutLeading(value, '[');
  }
  return std::nullopt;
}

}  // namespace kestrin
