#pragma once

/// @file
/// The ends of the tool's two streams.

#include <string>

namespace kestrin::tool {

/// Writes one line to standard error; returns the exit status that it is given.
int ReportError(const std::string& what, int exitStatus);

/// Ends standard output: returns the exit status that it is given, or reports that not all could be written.
[[nodiscard]] int FinishOutput(int exitStatus);

}  // namespace kestrin::tool
