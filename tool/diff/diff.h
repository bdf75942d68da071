#pragma once

/// @file
/// The command `kestrin diff`: what changed between two exports.

#include <string>

#include "tool/export_set.h"

namespace kestrin::tool {

/// Imports and compares two sets, and prints the differences as "text" or "json". Returns the exit status:
/// kSuccess if there is none, kIncomplete if there is one, kUnusable if a set cannot be read to its end.
int Diff(const ExportSet& before, const ExportSet& after, const std::string& format, bool all);

/// Raises UsageError if only one of the sets has a file, but for the Tech file.
void RequireSameFiles(const ExportSet& before, const ExportSet& after);

}  // namespace kestrin::tool
