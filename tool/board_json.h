#pragma once

/// @file
/// A board as JSON.

#include "kestrin/board/board.h"
#include "tool/json_writer.h"

namespace kestrin::tool {

void WriteJson(JsonWriter& json, const Board& board);

}  // namespace kestrin::tool
