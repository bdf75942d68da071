#pragma once

/// @file
/// Cutting a line into its command and arguments.

#include <string_view>

namespace kestrin {

/// A line `$$word(arguments);`. Nothing is trimmed.
struct CommandLine {
  std::string_view word;       ///< the text before the first "("; empty if there is no "("
  std::string_view arguments;  ///< the text after it, without any ")" and ";" at the end
};

[[nodiscard]] CommandLine CutCommandLine(std::string_view line);

}  // namespace kestrin
