#pragma once

/// @file
/// The command `anonymise`.

#include <string>

#include "tool/export_set.h"

namespace kestrin::tool {

/// The options of the command, as words of the command line.
struct AnonymiseWords {
  std::string key;  ///< empty for a random one
  std::string map;  ///< the file for the map of names; empty for none
  bool force = false;
};

/// Writes a copy of the files with other names into a folder. Returns the exit status.
int Anonymise(ExportSet files, const std::string& folder, const AnonymiseWords& words);

}  // namespace kestrin::tool
