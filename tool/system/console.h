#pragma once

/// @file
/// Standard streams and the terminal, which each system has in its own way.

#include <optional>

namespace kestrin::tool {

/// While it exists, standard input and output carry bytes as they are, and a terminal shows them as UTF-8 and
/// understands control sequences if it can.
class StandardStreams {
 public:
  StandardStreams();
  StandardStreams(const StandardStreams&) = delete;
  StandardStreams& operator=(const StandardStreams&) = delete;
  ~StandardStreams();  // NOLINT(performance-trivially-destructible): on Windows it restores the terminal

 private:
  struct Settings {
    unsigned encoding = 0;
    std::optional<unsigned long> mode;
  };
  Settings before_;
};

/// Whether standard error is a terminal that understands control sequences. Needs StandardStreams.
[[nodiscard]] bool CanRedrawErrors();

/// The characters in a line of the terminal of standard error; 0 if that is not known.
[[nodiscard]] int TerminalWidth();

}  // namespace kestrin::tool
