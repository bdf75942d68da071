#pragma once

/// @file
/// Telling the user what went wrong.

#include <cstdio>
#include <string>

namespace kestrin::tool {

/// Writes one line to standard error; returns the exit status that it is given.
inline int ReportError(const std::string& what, int exitStatus) {
  std::fprintf(stderr, "kestrin: %s\n", what.c_str());
  return exitStatus;
}

}  // namespace kestrin::tool
