#pragma once

/// @file
/// The Traces file's part of the summary.

#include "kestrin/traces/traces_model.h"

namespace kestrin::tool {

/// Prints how much routed copper there is, and the nets with the most segments.
void PrintTraces(const CMTraces& traces);

}  // namespace kestrin::tool
