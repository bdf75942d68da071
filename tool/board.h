#pragma once

/// @file
/// kestrin board: the board that the files describe together.

#include <optional>
#include <string>

#include "kestrin/board/read_board.h"
#include "tool/export_set.h"
#include "tool/import.h"

namespace kestrin::tool {

/// The words of the command line, empty where they are not given.
struct ReadingWords {
  std::string rotation;
  std::string bottom;
  std::string bottomTurn;
  std::optional<double> widthStep;
};

/// The names of the senses of rotation, on the command line and in JSON.
inline constexpr const char* kCounterClockwise = "ccw";
inline constexpr const char* kClockwise = "cw";

/// Reads the board of an import.
[[nodiscard]] Board BoardOf(const Imported& imported, const BoardOptions& options = {});

/// Imports the files and prints the board as JSON. Returns the exit status. Raises UsageError for a width
/// step that is no width.
[[nodiscard]] int PrintBoard(const ExportSet& files, const ReadingWords& words);

}  // namespace kestrin::tool
