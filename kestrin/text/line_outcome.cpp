#include "kestrin/text/line_outcome.h"

namespace kestrin {

std::string LineOutcome::Reason() const {
  if (rule_ == nullptr) return std::string(TextOf(code_).text);
  std::string reason(rule_->record);
  reason.append(valueCount_ < 0 ? " needs " : " takes ").append(rule_->demand);
  if (valueCount_ >= 0) reason.append(", this line has ").append(std::to_string(valueCount_));
  return reason;
}

}  // namespace kestrin
