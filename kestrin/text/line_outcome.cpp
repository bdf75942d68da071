#include "kestrin/text/line_outcome.h"

#include "kestrin/text/record_table.h"

namespace kestrin {
namespace {

std::string RequirementOf(const RecordRule& rule, SkipCode code, std::int32_t valueCount) {
  switch (code) {
    case SkipCode::kWrongValueCount: return rule.values.Text() + ", " + std::to_string(valueCount) + " found";
    case SkipCode::kNoOwner: return std::string(rule.owner);
    default: return std::string(rule.requirement);
  }
}

}  // namespace

std::string LineOutcome::Reason() const {
  if (code_ == SkipCode::kOpenQuote && number_ > 0) {
    return "the line begins inside the apostrophe opened on line " + std::to_string(number_);
  }
  const std::string requirement = rule_ == nullptr ? std::string() : RequirementOf(*rule_, code_, number_);
  if (requirement.empty()) return std::string(TextOf(code_).text);
  return std::string(rule_->name) + " needs " + requirement;
}

}  // namespace kestrin
