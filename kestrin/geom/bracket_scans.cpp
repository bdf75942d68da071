#include "kestrin/geom/bracket_scans.h"

#include "kestrin/platform/numbers.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

bool HasOpening(std::string_view value) { return value.find('[') != std::string_view::npos; }
bool HasClosing(std::string_view value) { return value.find(']') != std::string_view::npos; }

/// Returns whether a "[" was seen.
bool Scan(const Values& values, std::size_t first, const BracketScan& scan, std::vector<double>& numbers) {
  const auto append = [&](std::string_view text, bool emptyIsZero) {
    if (emptyIsZero || !text.empty()) numbers.push_back(ToDouble(text));
  };
  bool bracketed = false;
  bool open = false;
  for (std::size_t number = first; number <= values.Count(); ++number) {
    const std::string_view value = values[number];
    if (HasOpening(value)) {
      append(WithoutLeading(value, '['), scan.bareBracketIsZero);
      bracketed = open = true;
    } else if (HasClosing(value)) {
      if (open || scan.readsCloseWhenShut) append(WithoutTrailing(value, ']'), scan.bareBracketIsZero);
      if (open && scan.stopsAtClose) break;
      open = false;
    } else if (open) {
      append(value, scan.emptyValueIsZero);
    }
  }
  return bracketed;
}

}  // namespace

void ReadPoints(const Values& values, std::size_t first, const BracketScan& scan,
                const PendingPoints& pending, std::vector<double>& numbers) {
  numbers.clear();
  if (Scan(values, first, scan, numbers)) return;
  for (const PendingValue& value : pending.Values()) {
    if (scan.emptyPendingIsZero || !value.isEmpty) numbers.push_back(value.number);
  }
}

BracketedPoint ReadPoint(const Values& values, std::size_t first, const PendingPoints& pending) {
  std::optional<double> x;
  std::optional<double> y;
  for (std::size_t number = first; number <= values.Count(); ++number) {
    const std::string_view value = values[number];
    if (HasOpening(value)) {
      if (!x) x = ToDouble(WithoutLeading(value, '['));
    } else if (HasClosing(value)) {
      if (!y) y = ToDouble(WithoutTrailing(value, ']'));
    }
  }
  BracketedPoint point{x.value_or(0.0), y.value_or(0.0)};
  if (!x) {
    pending.CopyTo(1, point.x);
    pending.CopyTo(2, point.y);
  }
  return point;
}

std::optional<std::string_view> FirstBracketed(const Values& values) {
  for (std::size_t number = 2; number <= values.Count(); ++number) {
    if (HasOpening(values.Raw(number))) return WithoutLeading(values[number], '[');
  }
  return std::nullopt;
}

}  // namespace kestrin
