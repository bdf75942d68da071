#pragma once

/// @file
/// Counting the lines of a file ahead of reading it.

namespace kestrin {

/// One more than the line feeds in the file; 1 when it cannot be opened. A read error ends the count.
[[nodiscard]] int CountLines(const char* path);

}  // namespace kestrin
