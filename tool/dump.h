#pragma once

/// @file
/// The command `kestrin dump`: prints the object model as a JSON document.

#include "tool/export_set.h"

namespace kestrin::tool {

/// Imports the files and prints their models. Returns the exit status.
[[nodiscard]] int Dump(const ExportSet& files);

}  // namespace kestrin::tool
