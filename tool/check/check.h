#pragma once

/// @file
/// The command `kestrin check`: finds what is wrong with an export set.

#include <string>
#include <vector>

#include "kestrin/board/findings.h"
#include "tool/export_set.h"
#include "tool/import.h"

namespace kestrin::tool {

/// The options of the command, as words of the command line.
struct CheckWords {
  std::string format = "text";
  std::string failOn = "warning";
  std::vector<std::string> allowed;
  bool quiet = false;
  bool ignored = false;
};

/// Imports the files, checks them and prints the problems. Returns the exit status: kIncomplete if there is a
/// problem as bad as the user asked for. Raises UsageError if a file cannot be read.
int Check(const ExportSet& files, const CheckWords& words);

/// What there is to check of an import. It refers to the import.
[[nodiscard]] CheckedSet SetOf(const Imported& imported);

}  // namespace kestrin::tool
