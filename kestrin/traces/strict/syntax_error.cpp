#include "kestrin/traces/strict/syntax_error.h"

#include <utility>

#include "kestrin/traces/strict/traces_grammar.h"

namespace kestrin {

std::string SyntaxError::Describe() const {
  const auto name = [](std::size_t token) {
    return std::string(TracesGrammar::symbol_name(static_cast<TracesGrammar::symbol_kind_type>(token)));
  };
  std::string description = "found " + name(static_cast<std::size_t>(found));
  if (!text.empty() && text != name(static_cast<std::size_t>(found))) description += " (" + text + ")";
  const char* separator = ", expected ";
  for (std::size_t token = 0; token < expected.size(); ++token) {
    if (expected.test(token)) description += std::exchange(separator, " or ") + name(token);
  }
  return description;
}

}  // namespace kestrin
