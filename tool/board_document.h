#pragma once

/// @file
/// A board as a document.

#include "kestrin/board/board.h"
#include "tool/document_writer.h"

namespace kestrin::tool {

void Write(DocumentWriter& document, const Board& board);

}  // namespace kestrin::tool
