#pragma once

/// @file
/// The command `kestrin check`: lists the lines that an import skips and, with --strict, the syntax errors of
/// the Traces file.

#include "tool/export_set.h"

namespace kestrin::tool {

enum class CheckFormat { kText, kJson };

/// Imports the files and prints the skipped lines and syntax errors. Returns the exit status, which is
/// kSuccess only if there are none.
[[nodiscard]] int Check(const ExportSet& files, CheckFormat format);

}  // namespace kestrin::tool
