#pragma once

/// @file
/// kestrin check: the lines of an export set that an import skips; with --strict, the syntax errors of its
/// Traces file.

#include "tool/export_set.h"

namespace kestrin::tool {

enum class CheckFormat { kText, kJson };

/// Imports the files and prints their skipped lines and syntax errors. Returns the exit status: success only
/// when there are none.
[[nodiscard]] int Check(const ExportSet& files, CheckFormat format);

}  // namespace kestrin::tool
