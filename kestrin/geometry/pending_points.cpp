#include "kestrin/geometry/pending_points.h"

#include "kestrin/geometry/point_values.h"
#include "kestrin/text/trim.h"

namespace kestrin {

std::string_view PendingPoints::BracketedIn(std::string_view arguments) {
  const std::size_t close = arguments.find(']');
  if (close == std::string_view::npos) return {};
  const std::size_t start = arguments.find('[') + 1;  // npos + 1 is 0
  return start < close ? arguments.substr(start, close - start) : std::string_view();
}

void PendingPoints::Begin(std::string_view arguments) {
  Clear();
  AddEach(BracketedIn(arguments), [this](std::string_view value) { Add(value); });
}

void PendingPoints::Continue(std::string_view arguments) {
  // Blanks are removed. A value of blanks only is dropped.
  AddEach(BracketedIn(arguments), [this](std::string_view value) {
    const std::string_view text = WithoutBlanks(value);
    if (!text.empty()) Add(text);
  });
}

/// Adds plain values directly, and calls addOther for all others.
template <class AddOther>
void PendingPoints::AddEach(std::string_view points, AddOther addOther) {
  ValueCut cut(points, Commas::kEvery);
  for (;;) {
    PointValue plain;
    const std::size_t length = ReadPlainValue(cut.Rest(), plain);
    if (length > 0 && plain.bracket == Bracket::kNone) {
      values_.push_back({plain.number, false});
      cut.Skip(length);
    } else if (const auto value = cut.Next()) {
      addOther(*value);
    } else {
      return;
    }
  }
}

void PendingPoints::Add(std::string_view value) {
  const std::string_view text = Cleaned(value);
  values_.push_back({ToDouble(text), text.empty()});
}

std::string_view PendingPoints::WithoutBlanks(std::string_view text) {
  text = WithoutTrailing(WithoutLeading(text, ' '), ' ');
  if (text.find(' ') == std::string_view::npos) return text;
  scratch_.assign(text);
  std::erase(scratch_, ' ');
  return scratch_;
}

}  // namespace kestrin
