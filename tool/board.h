#pragma once

/// @file
/// kestrin board: the board that the files describe together.

#include <optional>
#include <string>

#include "kestrin/board/read_board.h"
#include "tool/export_set.h"
#include "tool/import.h"
#include "tool/reading_words.h"

namespace kestrin::tool {

/// The options of the command line as they were typed; empty if not given.
struct ReadingWords {
  std::string rotation;
  std::string bottom;
  std::string bottomTurn;
  std::optional<double> widthStep;
};

/// The options that words of the command line mean. Raises UsageError if the width step is not positive and
/// finite.
[[nodiscard]] BoardOptions OptionsOf(const ReadingWords& words);

/// The models of an import. They are valid as long as it is.
[[nodiscard]] BoardModels ModelsIn(const Imported& imported);

/// Reads the board of an import.
[[nodiscard]] Board BoardOf(const Imported& imported, const BoardOptions& options = {});

/// Imports the files and prints the board as JSON. Returns the exit status. Raises UsageError if the width
/// step is not positive and finite.
[[nodiscard]] int PrintBoard(const ExportSet& files, const ReadingWords& words);

}  // namespace kestrin::tool
