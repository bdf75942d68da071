#pragma once

/// @file
/// Drawing a board that was imported.

#include <optional>
#include <string>
#include <vector>

#include "kestrin/board/board.h"
#include "tool/import.h"

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

/// What to draw.
struct Subject {
  const Imported& imported;
  const Board& board;                 ///< of this import
  const Imported* against = nullptr;  ///< an import whose differences are shown
};

/// Raises UsageError if the name of the picture, the box, or the picture of a comparison is wrong.
void CheckWords(const DrawWords& words, bool isAgainst);

/// Draws the board into a file, whose ending says the format. Returns what the user should know about the
/// picture. Raises UsageError if an option is wrong or the file cannot be written.
[[nodiscard]] std::vector<std::string> DrawBoard(const Subject& subject, const DrawWords& words);

}  // namespace kestrin::tool::draw
