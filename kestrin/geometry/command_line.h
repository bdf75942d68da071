#pragma once

/// @file
/// The cut of a line into its command and what the command is given.

#include <string_view>

namespace kestrin {

/// A line `$$word(arguments);`. Nothing is trimmed.
struct CommandLine {
  std::string_view word;       ///< the text before the first "("; empty when there is none
  std::string_view arguments;  ///< what follows, without any ")" and ";" at its end
};

[[nodiscard]] CommandLine CutCommandLine(std::string_view line);

}  // namespace kestrin
