#pragma once

/// @file
/// kestrin summary: the contents of an export set at a glance.

#include "tool/export_set.h"

namespace kestrin::tool {

/// Imports the files and prints tables. Returns the exit status.
[[nodiscard]] int Summary(const ExportSet& files);

}  // namespace kestrin::tool
