#include "kestrin/geometry/line_numbers.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>

#include "kestrin/geometry/point_values.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

/// A value with its bracket. A plain number has no text: it cannot be wrong.
struct NumberedText : PointText {
  int position = 0;
};

/// Cuts the values of a line into texts, and numbers them.
class PointTexts {
 public:
  PointTexts(Values& values, std::size_t first)
      : cut_(values.From(first)), position_(static_cast<int>(first)) {}

  [[nodiscard]] std::optional<NumberedText> Next() {
    PointValue plain;
    if (const std::size_t length = ReadPlainValue(cut_.Rest(), plain)) {
      cut_.Skip(length);
      return NumberedText{{{}, plain.bracket}, position_++};
    }
    const auto raw = cut_.Next();
    if (!raw) return std::nullopt;
    return NumberedText{PointTextOf(*raw), position_++};
  }

 private:
  ValueCut cut_;
  int position_;
};

/// A number may be followed by a bracket, as in "[5]": what comes after it is not read.
void Show(const NumberedText& value, const NumberAction& action, NumberKind kind = NumberKind::kDecimal) {
  const std::string_view text = Trimmed(WithoutTrailing(TrimmedRight(value.text), ']'));
  CheckNumber(value.position, text, kind, action);
}

/// Checks the values in the brackets of the arguments. Their positions are those in the whole of the
/// arguments.
template <class CleanedText>
void ShowPending(std::string_view arguments, const NumberAction& action, CleanedText cleaned) {
  const std::string_view bracketed = PendingPoints::BracketedIn(arguments);
  const char* const begin = bracketed.data();
  const char* const end = begin + bracketed.size();
  ValueCut cut(arguments, Commas::kEvery);
  for (int position = 1; const auto value = cut.Next(); ++position) {
    const char* const first = std::max(value->data(), begin);
    const char* const last = std::min(value->data() + value->size(), end);
    if (first >= last) continue;
    const auto text = cleaned({first, static_cast<std::size_t>(last - first)});
    CheckNumber(position, text, NumberKind::kDecimal, action);
  }
}

}  // namespace

void ShowPoints(ReaderState& state, std::size_t firstValue, const BracketScan& scan,
                const NumberAction& action) {
  PointTexts values(state.values, firstValue);
  const auto show = [&](const NumberedText& value, bool /*emptyIsZero*/) { Show(value, action); };
  static_cast<void>(ScanPoints([&] { return values.Next(); }, scan, show));
}

void ShowPoint(ReaderState& state, std::size_t firstValue, const NumberAction& action) {
  PointTexts values(state.values, firstValue);
  bool hasX = false;
  bool hasY = false;
  while (!hasX || !hasY) {
    const auto value = values.Next();
    if (!value) return;
    bool& isKnown = value->bracket == Bracket::kOpening ? hasX : hasY;
    if (value->bracket == Bracket::kNone || std::exchange(isKnown, true)) continue;
    Show(*value, action);
  }
}

void ShowFirstBracketed(ReaderState& state, NumberKind kind, const NumberAction& action) {
  for (std::size_t number = 2; state.values.HasAtLeast(number); ++number) {
    const auto [text, bracket] = PointTextOf(state.values.Raw(number));
    if (bracket == Bracket::kOpening) return Show({{text, bracket}, static_cast<int>(number)}, action, kind);
  }
}

void InitialPoints(ReaderState& state, const NumberAction& action) {
  ShowPending(state.arguments, action, [](std::string_view value) { return Cleaned(value); });
}

void TerminalPoints(ReaderState& state, const NumberAction& action) {
  std::string scratch;
  ShowPending(state.arguments, action, [&](std::string_view value) {
    scratch = value;
    std::erase(scratch, ' ');
    return Cleaned(scratch);
  });
}

void PathWidth(ReaderState& state, const NumberAction& action) {
  const std::string_view value = Trimmed(state.arguments.substr(0, state.arguments.find(',')));
  const std::string_view text = WithoutTrailing(WithoutLeading(value, '('), ')');
  CheckNumber(1, text, NumberKind::kDecimal, action);
}

}  // namespace kestrin
