#include "kestrin/text/line_outcome.h"

namespace kestrin {

std::string LineOutcome::Reason() const {
  if (code_ == SkipCode::kOpenQuote && number_ > 0) {
    return "line " + std::to_string(number_) +
           " left an apostrophe open, so that the blanks of this line do not separate";
  }
  if (rule_ == nullptr) return std::string(TextOf(code_).text);
  std::string reason(rule_->record);
  reason.append(number_ < 0 ? " needs " : " takes ").append(rule_->demand);
  if (number_ >= 0) reason.append(", this line has ").append(std::to_string(number_));
  return reason;
}

}  // namespace kestrin
