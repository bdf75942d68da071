#include "kestrin/geometry/values.h"

#include "kestrin/text/fields.h"

namespace kestrin {

std::optional<std::string_view> ValueCut::Next() {
  return commas_ == Commas::kEvery ? NextToken(text_, ',', position_) : NextCommaField(text_, position_);
}

}  // namespace kestrin
