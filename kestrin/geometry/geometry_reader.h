#pragma once

/// @file
/// Reads the lines of a Geometry file into its model.

#include <string_view>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/geometry/reader_state.h"
#include "kestrin/text/line_outcome.h"

namespace kestrin {

/// A line is a command, `$$word(arguments);`. Create commands open a geometry, and the commands that follow
/// fill it.
class GeometryReader {
 public:
  /// The model must outlive the reader.
  explicit GeometryReader(CMGeom& model) : state_(model) {}

  LineOutcome ReadLine(std::string_view line);

 private:
  ReaderState state_;
};

}  // namespace kestrin
