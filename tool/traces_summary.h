#pragma once

/// @file
/// The Traces file's part of the summary.

#include "kestrin/traces/traces_model.h"

namespace kestrin::tool {

/// Prints how many records of each kind there are.
void PrintTraces(const CMTraces& traces);

}  // namespace kestrin::tool
