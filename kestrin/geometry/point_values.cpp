#include "kestrin/geometry/point_values.h"

#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

bool Contains(std::string_view text, char c) { return text.find(c) != std::string_view::npos; }

}  // namespace

std::optional<PointValue> NextAnyPointValue(ValueCut& cut) {
  const auto raw = cut.Next();
  if (!raw) return std::nullopt;
  std::string_view text = Cleaned(*raw);
  Bracket bracket = Bracket::kNone;
  if (Contains(text, '[')) {
    bracket = Bracket::kOpening;
    text = WithoutLeading(text, '[');
  } else if (Contains(text, ']')) {
    bracket = Bracket::kClosing;
    text = WithoutTrailing(text, ']');
  }
  return PointValue{ToDouble(text), text.empty(), bracket};
}

}  // namespace kestrin
