#pragma once

/// @file
/// Reads the lines of a Geometry file into its model.

#include <string_view>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/geometry/reader_state.h"
#include "kestrin/text/line_outcome.h"

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

 private:
  ReaderState state_;
};

}  // namespace kestrin
