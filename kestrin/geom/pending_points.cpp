#include "kestrin/geom/pending_points.h"

#include "kestrin/platform/numbers.h"
#include "kestrin/text/fields.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

/// What stands between the first "[" and the first "]": all before the "]" without a "[", nothing without a
/// "]" or when the "]" comes first.
std::string_view Bracketed(std::string_view arguments) {
  const std::size_t close = arguments.find(']');
  if (close == std::string_view::npos) return {};
  const std::size_t start = arguments.find('[') + 1;  // npos + 1 is 0
  return start < close ? arguments.substr(start, close - start) : std::string_view();
}

}  // namespace

void PendingPoints::Begin(std::string_view arguments) {
  Clear();
  const std::string_view points = Bracketed(arguments);
  std::size_t position = 0;
  while (const auto value = NextToken(points, kComma, position)) Add(*value);
}

void PendingPoints::Continue(std::string_view arguments) {
  // Blanks go, and a value of blanks alone with them.
  const std::string_view points = Bracketed(arguments);
  std::size_t position = 0;
  while (const auto value = NextToken(points, kComma, position)) {
    const std::string_view text = WithoutBlanks(*value);
    if (!text.empty()) Add(text);
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
