#pragma once

#include <sstream>
#include <string>
#include <vector>

#include "kestrin/text/line_outcome.h"

namespace kestrin::test {

/// Feeds every line of a text to a reader and returns the outcomes.
template <class READER>
std::vector<LineOutcome> Feed(READER& reader, const std::string& text) {
  std::vector<LineOutcome> outcomes;
  std::istringstream lines(text);
  for (std::string line; std::getline(lines, line);) outcomes.push_back(reader.ReadLine(line));
  return outcomes;
}

/// An outcome in words.
inline std::string DescriptionOf(LineOutcome outcome) {
  if (outcome == LineOutcome::Imported()) return "imported";
  return outcome == LineOutcome::Ignored() ? "ignored" : outcome.Reason();
}

}  // namespace kestrin::test
