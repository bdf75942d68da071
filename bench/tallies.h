#pragma once

/// @file
/// Tallies of the library's models, comparable with those of the plain C programs.

#include "bench/measuring/work.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin::bench {

[[nodiscard]] Tally CountTraces(const CMTraces& traces);
[[nodiscard]] Tally CountGeometry(const CMGeom& geom);

}  // namespace kestrin::bench
