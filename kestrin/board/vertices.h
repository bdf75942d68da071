#pragma once

/// @file
/// Reading the points of polylines.

#include <optional>
#include <string_view>

#include "kestrin/board/board.h"
#include "kestrin/board/names.h"

namespace kestrin {

class CMTracesSEG;

inline constexpr double kUnknownWidth = 0.0;  // no width of a track is 0

/// The contents of a SEG record.
struct Vertex {
  Point point;
  int layer = 0;
  std::optional<Index> via;  // in Board::viaPadstacks
  double width = kUnknownWidth;
};

/// The layer and width of a leg.
struct Leg {
  int layer = 0;
  double width = kUnknownWidth;
};

/// The leg between two points. At a via the layer changes, so the point after it tells the layer.
[[nodiscard]] inline Leg LegBetween(const Vertex& begin, const Vertex& end) {
  return {begin.via ? end.layer : begin.layer, begin.width != kUnknownWidth ? begin.width : end.width};
}

/// Reads SEG records.
class VertexReader {
 public:
  /// Units are millimetres. The index of via padstacks must outlive the reader, and so must the records.
  VertexReader(double unit, std::optional<double> widthStep, const NameIndex& viaPadstacks)
      : unit_(unit), widthStep_(widthStep.value_or(0.0)), viaPadstacks_(viaPadstacks) {}

  [[nodiscard]] Vertex Read(const CMTracesSEG& record);

 private:
  [[nodiscard]] std::optional<Index> PadstackNamed(std::string_view name);
  [[nodiscard]] double WidthOfSteps(double steps);
  [[nodiscard]] double Width(double inFile) const;

  double unit_;
  double widthStep_;  // 0 if unknown
  const NameIndex& viaPadstacks_;
  std::string_view lastName_;
  std::optional<Index> padstackOfLastName_;
  double lastSteps_ = 0.0;
  double widthOfLastSteps_ = kUnknownWidth;
};

}  // namespace kestrin
