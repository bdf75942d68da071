#pragma once

/// @file
/// What the tool returns to its caller.

namespace kestrin::tool {

/// All is well; there is something to look at; nothing could be done.
enum ExitStatus : int { kSuccess = 0, kIncomplete = 1, kUnusable = 2 };

}  // namespace kestrin::tool
