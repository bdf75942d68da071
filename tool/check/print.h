#pragma once

/// @file
/// Printing the result of a check.

#include "tool/check/problems.h"

namespace kestrin::tool {

/// Prints the problems for people, with a verdict in the last line.
void PrintProblems(const Checked& checked);

/// Prints the result as a JSON document (docs/check.schema.json).
void PrintProblemsAsJson(const Checked& checked);

/// Prints which lines of the files were read past, by keyword.
void PrintIgnoredLines(const Imported& imported);

}  // namespace kestrin::tool
