#pragma once

/// @file
/// The widths of tracks.

#include <optional>
#include <string_view>

namespace kestrin {

class CMTraces;

/// Whether a text consists of an optional sign, digits, and at most one decimal point.
[[nodiscard]] bool IsDecimalNumber(std::string_view text);

/// Fits the unit of widths that are written with digits only, in units of the file: the one of 1, 0.1, 0.01,
/// 0.001 and 0.0001 with which their median is a usual width of tracks; empty if no step fits.
[[nodiscard]] std::optional<double> FitWidthStep(const CMTraces& traces, double unit);

}  // namespace kestrin
