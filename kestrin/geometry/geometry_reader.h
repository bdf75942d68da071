#pragma once

/// @file
/// Reads the lines of a Geometry file into its model.

#include <string_view>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/geometry/reader_state.h"
#include "kestrin/text/format_words.h"
#include "kestrin/text/line_outcome.h"
#include "kestrin/text/value_kinds.h"

namespace kestrin {

/// Reads a Geometry file. A line is a command, `$$word(arguments);`. A create command opens a geometry; the
/// commands after it fill that geometry.
class GeometryReader {
 public:
  /// The model must outlive the reader.
  explicit GeometryReader(CMGeom& model) : state_(model) {}

  /// Notes the lines of records; to be called before the first line.
  void NoteLines(LineNotes& notes) { state_.records.NoteLines(notes); }

  LineOutcome ReadLine(std::string_view line);

  /// Shows the values that are read as numbers but are not wholly numbers. The line must be the last one
  /// read, and have been imported.
  void ForEachMisreadNumber(std::string_view line, const NumberAction& action);

  /// Passes every word that the reader, or a text of its model, compares with to the visitor.
  static void ForEachWord(const FormatWordVisitor& visit);

 private:
  ReaderState state_;
};

}  // namespace kestrin
