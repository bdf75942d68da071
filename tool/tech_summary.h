#pragma once

/// @file
/// The summary of a Tech file.

#include "kestrin/tech/tech_model.h"

namespace kestrin::tool {

/// Prints the stack-up and the via rules.
void PrintTech(const CMTech& tech);

}  // namespace kestrin::tool
