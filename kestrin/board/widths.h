#pragma once

/// @file
/// Widths of tracks.

#include <optional>
#include <string_view>

namespace kestrin {

class CMTraces;

/// Whether a text is a number with digits and at most one point, and nothing else but a sign.
[[nodiscard]] bool IsDecimalNumber(std::string_view text);

/// Fitted: the step of widths that are written in digits alone, in the file's unit. It is the one of 1, 0.1,
/// 0.01, 0.001 and 0.0001 that makes the median of these widths that of a track as boards have it; none where
/// none does.
[[nodiscard]] std::optional<double> FitWidthStep(const CMTraces& traces, double unit);

}  // namespace kestrin
