#pragma once

/// @file
/// kestrin dump: the object model as a JSON document.

#include "tool/export_set.h"

namespace kestrin::tool {

/// Imports the files and prints the model. Returns the exit status.
[[nodiscard]] int Dump(const ExportSet& files);

}  // namespace kestrin::tool
