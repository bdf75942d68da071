#pragma once

/// @file
/// Lengths and points in millimetres.

#include <cmath>
#include <cstdint>
#include <limits>

#include "kestrin/board/board.h"

namespace kestrin {

/// Rounds a length to 1e-9, so that the same point compares equal whatever unit a file uses. NaN becomes
/// infinity.
[[nodiscard]] inline double Rounded(double millimetres) {
  constexpr double kSteps = 1e9;
  constexpr double kMost = 4e6;  // the doubles beyond are nearly as coarse as the steps, or coarser
  if (!(std::abs(millimetres) < kMost)) {
    return std::isnan(millimetres) ? std::numeric_limits<double>::infinity() : millimetres;
  }
  const double steps = millimetres * kSteps + std::copysign(0.5, millimetres);
  return static_cast<double>(static_cast<std::int64_t>(steps)) / kSteps;
}

[[nodiscard]] inline bool IsFinite(Point point) { return std::isfinite(point.x) && std::isfinite(point.y); }

[[nodiscard]] inline Point PointAt(double x, double y, double unit) {
  return {Rounded(x * unit), Rounded(y * unit)};
}

/// The distance between two points; infinite if it cannot be computed.
[[nodiscard]] inline double Distance(Point a, Point b) {
  const double x = b.x - a.x;
  const double y = b.y - a.y;
  const double square = x * x + y * y;
  if (std::isfinite(square)) return std::sqrt(square);
  const double distance = std::hypot(x, y);
  return std::isnan(distance) ? std::numeric_limits<double>::infinity() : distance;
}

}  // namespace kestrin
