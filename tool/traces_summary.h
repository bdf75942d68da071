#pragma once

/// @file
/// The summary of a Traces file.

#include "kestrin/traces/traces_model.h"

namespace kestrin::tool {

/// Prints the number of records of each kind.
void PrintTraces(const CMTraces& traces);

}  // namespace kestrin::tool
