#pragma once

/// @file
/// kestrin draw: a picture of the board.

#include <optional>
#include <string>
#include <vector>

#include "tool/board.h"

namespace kestrin::tool::draw {

/// The options of the command line as they were typed; empty if not given.
struct DrawWords {
  std::string output;
  std::string view;
  std::string theme;
  std::string box;
  std::string against;  ///< the folder or file of another export
  std::vector<std::string> layers;
  std::vector<std::string> nets;
  std::optional<int> width;
  bool hasTags = false;
};

/// Imports the files and draws the board into a file, whose ending says the format. Returns the exit status.
/// Raises UsageError if an option is wrong or the file cannot be written.
[[nodiscard]] int Draw(const ExportSet& files, const ReadingWords& reading, const DrawWords& words);

}  // namespace kestrin::tool::draw
