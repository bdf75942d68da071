#pragma once

/// @file
/// Reads the lines of a Tech file into its model.

#include <string>
#include <string_view>

#include "kestrin/records/record_pool.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/text/format_words.h"
#include "kestrin/text/line_outcome.h"
#include "kestrin/text/record_table.h"

namespace kestrin {

/// Reads a Tech file. Each line is read on its own: if it contains the keyword of a command anywhere, it
/// becomes a record, whatever its arguments are.
class TechReader {
 public:
  /// The model must outlive the reader.
  explicit TechReader(CMTech& model) : model_(model) {}

  /// Notes the lines of records; to be called before the first line.
  void NoteLines(LineNotes& notes) { records_.NoteLines(notes); }

  LineOutcome ReadLine(std::string_view line);

  /// Shows the values that are read as numbers but are not wholly numbers, if the line is imported.
  void ForEachMisreadNumber(std::string_view line, const NumberAction& action);

  /// Passes every word that the reader compares with to the visitor.
  static void ForEachWord(const FormatWordVisitor& visit);

 private:
  using Command = Record<TechReader, LineOutcome (TechReader::*)(std::string_view line)>;
  struct Table;
  static const Command* Find(std::string_view line);
  LineOutcome AddLayer(std::string_view line);
  LineOutcome AddViaRule(std::string_view line);
  /// Calls visit with the number of each argument, from 1, and its text.
  template <class Visit>
  void ForEachArgument(std::string_view line, Visit visit);

  CMTech& model_;
  RecordPool records_;
  std::string unquoted_;  // the arguments of the current line; a member to reuse its memory
};

}  // namespace kestrin
