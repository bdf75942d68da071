#include "kestrin/geometry/point_values.h"

#include "kestrin/text/contains.h"
#include "kestrin/text/trim.h"

namespace kestrin {

PointText PointTextOf(std::string_view rawValue) {
  const std::string_view text = Cleaned(rawValue);
  if (Contains(text, '[')) return {WithoutLeading(text, '['), Bracket::kOpening};
  if (Contains(text, ']')) return {WithoutTrailing(text, ']'), Bracket::kClosing};
  return {text, Bracket::kNone};
}

std::optional<PointValue> NextAnyPointValue(ValueCut& cut) {
  const auto raw = cut.Next();
  if (!raw) return std::nullopt;
  const auto [text, bracket] = PointTextOf(*raw);
  return PointValue{ToDouble(text), text.empty(), bracket};
}

}  // namespace kestrin
