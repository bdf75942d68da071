#pragma once

/// @file
/// Counting the lines of a file before it is read.

namespace kestrin {

/// The number of line feeds in a file plus one, at most the largest int; 1 if the file cannot be opened. A
/// read error ends the count.
[[nodiscard]] int CountLines(const char* path);

}  // namespace kestrin
