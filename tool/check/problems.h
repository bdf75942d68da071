#pragma once

/// @file
/// Everything that `kestrin check` reports, in groups.

#include <cstddef>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/board/findings.h"
#include "tool/import.h"

namespace kestrin::tool {

/// A problem at a line. Line 0 means the file as a whole.
struct Problem {
  std::string file;
  std::int64_t line = 0;
  std::string message;
  std::string_view text;  ///< the line; empty if it is not shown
};

/// The problems with the same code.
struct ProblemGroup {
  Severity severity;
  std::string_view code;
  std::string_view verdict;  ///< what they say about the files
  std::size_t count = 0;
  std::vector<Problem> first;  ///< not more than the library keeps
};

/// What a check found. It refers to the import.
struct Checked {
  const Imported& imported;
  Findings findings;
  std::string stopped;                         ///< where and why a reader stopped early; empty if none did
  std::set<std::string, std::less<>> allowed;  ///< codes that are not reported

  [[nodiscard]] bool Reports(std::string_view code) const { return !allowed.contains(code); }
};

/// The problems that are reported: errors first, then warnings, then notes.
[[nodiscard]] std::vector<ProblemGroup> ProblemsOf(const Checked& checked);

/// Whether a code is one that a check may report.
[[nodiscard]] bool IsCode(std::string_view code);

/// All codes, separated by commas.
[[nodiscard]] std::string AllCodes();

}  // namespace kestrin::tool
