#include "kestrin/traces/line_values.h"

#include "kestrin/text/fields.h"
#include "kestrin/text/trim.h"

namespace kestrin {

void LineValues::Cut(std::string_view line) {
  values_.clear();
  std::size_t position = 0;
  while (const auto value = NextSpaceField(line, position, quoted_)) values_.push_back(*value);
}

std::string_view LineValues::Unquoted(std::size_t number) const {
  return WithoutTrailing(WithoutLeading(Text(number), '\''), '\'');
}

}  // namespace kestrin
