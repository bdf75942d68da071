#include "kestrin/traces/line_values.h"

#include "kestrin/text/fields.h"
#include "kestrin/text/trim.h"

namespace kestrin {

void LineValues::Begin(std::string_view line) {
  values_.clear();
  rest_ = line;
  if (quoted_ || line.find('\'') != std::string_view::npos) CutQuoted(line);
}

/// Cuts the whole line.
void LineValues::CutQuoted(std::string_view line) {
  std::size_t position = 0;
  while (const auto value = NextSpaceField(line, position, quoted_)) values_.push_back(*value);
  rest_ = {};
}

std::string_view LineValues::Unquoted(std::size_t number) {
  return WithoutTrailing(WithoutLeading(Text(number), '\''), '\'');
}

}  // namespace kestrin
