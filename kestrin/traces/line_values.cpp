#include "kestrin/traces/line_values.h"

#include "kestrin/text/fields.h"

namespace kestrin {

void LineValues::Cut(std::string_view line) {
  values_.clear();
  std::size_t position = 0;
  while (const auto value = NextSpaceField(line, position, quoted_)) values_.push_back(*value);
}

std::string_view LineValues::Unquoted(std::size_t number) const {
  std::string_view text = Text(number);
  while (!text.empty() && text.front() == '\'') text.remove_prefix(1);
  while (!text.empty() && text.back() == '\'') text.remove_suffix(1);
  return text;
}

}  // namespace kestrin
