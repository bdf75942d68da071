#include "kestrin/geometry/point_values.h"

#include "kestrin/text/contains.h"
#include "kestrin/text/trim.h"

namespace kestrin {

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
