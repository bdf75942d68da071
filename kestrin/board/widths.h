#pragma once

/// @file
/// The widths of tracks.

#include <cstddef>
#include <optional>
#include <string_view>
#include <vector>

namespace kestrin {

class CMTraces;

/// A width, and the number of consecutive points with it.
struct WidthRun {
  double width;
  std::size_t count;
};

/// What one pass over the SEG records of all polylines finds out before they are read.
struct CopperSurvey {
  std::vector<WidthRun> widthsInDigits;  // in steps
  std::size_t polylines = 0;
  std::size_t points = 0;
  std::size_t texts = 0;  // points whose value 4 has more than digits, usually the names of vias
};

/// The traces may be null.
[[nodiscard]] CopperSurvey SurveyCopper(const CMTraces* traces);

/// Fits the unit of widths that are written with digits only, in units of the file: the one of 1, 0.1, 0.01,
/// 0.001 and 0.0001 with which their median is a usual width of tracks; empty if no step fits.
[[nodiscard]] std::optional<double> FitWidthStep(const CopperSurvey& survey, double unit);

/// Whether a text consists of an optional sign, digits, and at most one decimal point.
[[nodiscard]] bool IsDecimalNumber(std::string_view text);

}  // namespace kestrin
