#pragma once

/// @file
/// The exit statuses of the tool.

namespace kestrin::tool {

enum ExitStatus : int {
  kSuccess = 0,     ///< the command found no problem
  kIncomplete = 1,  ///< it found problems, or had to stop early
  kUnusable = 2,    ///< wrong usage, an unreadable file, or output that cannot be written
};

}  // namespace kestrin::tool
