#include "kestrin/text/line_outcome.h"

#include "kestrin/text/record_table.h"

namespace kestrin {
namespace {

std::string DemandOf(const RecordRule& rule, SkipCode code, std::int32_t valueCount) {
  switch (code) {
    case SkipCode::kWrongValueCount: return rule.values.Text() + ", " + std::to_string(valueCount) + " found";
    case SkipCode::kNoOwner: return std::string(rule.owner);
    default: return std::string(rule.demand);
  }
}

}  // namespace

std::string LineOutcome::Reason() const {
  if (code_ == SkipCode::kOpenQuote && number_ > 0) {
    return "the line begins inside the apostrophe opened on line " + std::to_string(number_);
  }
  const std::string demand = rule_ == nullptr ? std::string() : DemandOf(*rule_, code_, number_);
  if (demand.empty()) return std::string(TextOf(code_).text);
  return std::string(rule_->name) + " needs " + demand;
}

}  // namespace kestrin
