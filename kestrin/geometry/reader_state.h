#pragma once

/// @file
/// The state that the reader of a Geometry file keeps from line to line.

#include <cstddef>
#include <string_view>
#include <vector>

#include "kestrin/geometry/bracket_scans.h"
#include "kestrin/geometry/current_geometry.h"
#include "kestrin/geometry/pending_points.h"
#include "kestrin/geometry/values.h"
#include "kestrin/records/record_pool.h"
#include "kestrin/text/line_outcome.h"

namespace kestrin {

struct RecordRule;

struct ReaderState {
  /// The model must outlive this object.
  explicit ReaderState(CMGeom& model) : geometry(model, records) {}

  /// The points of the current line, or the pending points. Consumes the pending points in either case.
  [[nodiscard]] const std::vector<double>& TakePoints(std::size_t firstValue, const BracketScan& scan) {
    ReadPoints(values.From(firstValue), scan, pending, numbers);
    pending.Clear();
    return numbers;
  }

  /// The same for a single point.
  [[nodiscard]] BracketedPoint TakePoint(std::size_t firstValue) {
    const BracketedPoint point = ReadPoint(values.From(firstValue), pending);
    pending.Clear();
    return point;
  }

  RecordPool records;  ///< makes the records of the model
  CurrentGeometry geometry;
  PendingPoints pending;
  double pathWidth = 0.0;  ///< the width of arcs and circles that specify none

  // The current line.
  std::string_view arguments;        ///< of its command
  Values values;                     ///< the arguments, cut into values
  const RecordRule* rule = nullptr;  ///< of its command or attribute
  std::vector<double> numbers;       ///< the result of TakePoints; a member to reuse its memory
};

}  // namespace kestrin
