#pragma once

/// @file
/// Standard streams and the terminal, which each system has in its own way.

namespace kestrin::tool {

/// While it exists, standard input and output carry bytes as they are, and a terminal shows them as UTF-8.
class StandardStreams {
 public:
  StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;
  ~StandardStreams();  // NOLINT(performance-trivially-destructible): on Windows it restores the terminal

 private:
  unsigned encodingBefore_ = 0;
};

/// Whether standard error is a terminal that understands control sequences.
[[nodiscard]] bool CanRedrawErrors();

/// The characters in a line of the terminal of standard error; 0 if that is not known.
[[nodiscard]] int TerminalWidth();

}  // namespace kestrin::tool
