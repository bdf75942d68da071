#pragma once

/// @file
/// The summary of a set as a document.

#include "kestrin/board/board.h"
#include "tool/document_writer.h"
#include "tool/import.h"

namespace kestrin::tool {

/// Writes what the files and the board contain: counts and lengths. The board is that of the import.
void WriteSummary(DocumentWriter& document, const Imported& imported, const Board& board);

}  // namespace kestrin::tool
