#include "kestrin/geom/values.h"

#include "kestrin/text/fields.h"

namespace kestrin {

void Values::CutAtCommas(std::string_view text) {
  values_.clear();
  std::size_t position = 0;
  while (const auto value = NextToken(text, kComma, position)) values_.push_back(*value);
}

void Values::CutAtUnquotedCommas(std::string_view text) {
  values_.clear();
  std::size_t position = 0;
  while (const auto value = NextCommaField(text, position)) values_.push_back(*value);
}

}  // namespace kestrin
