#pragma once

/// @file
/// Reads the lines of a Tech file into its model.

#include <string>
#include <string_view>

#include "kestrin/tech/tech_model.h"
#include "kestrin/text/line_outcome.h"

namespace kestrin {

/// Every line stands for itself: one that holds a command's keyword anywhere becomes a record, whatever its
/// arguments are.
class TechReader {
 public:
  /// The model must outlive the reader.
  explicit TechReader(CMTech& model) : model_(model) {}

  LineOutcome ReadLine(std::string_view line);

 private:
  LineOutcome AddLayer(std::string_view line);
  LineOutcome AddViaRule(std::string_view line);
  /// Calls visit with every argument of a command and its number, from 1.
  template <class Visit>
  void ForEachArgument(std::string_view line, Visit visit);

  CMTech& model_;
  std::string unquoted_;  // room for the arguments of the current line
};

}  // namespace kestrin
