#pragma once

/// @file
/// Reporting errors, and finishing the output.

#include <string>

namespace kestrin::tool {

/// Prints "kestrin: what" to standard error and returns the exit status.
int ReportError(const std::string& what, int exitStatus);

/// Flushes standard output and returns the exit status. If not everything could be written, reports that and
/// returns kUnusable.
[[nodiscard]] int FinishOutput(int exitStatus);

}  // namespace kestrin::tool
