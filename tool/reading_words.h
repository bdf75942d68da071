#pragma once

/// @file
/// How a reading of the board is written, on the command line and in documents.

#include <string_view>

#include "kestrin/board/board.h"

namespace kestrin::tool {

///@{
/// The names of the senses of rotation.
inline constexpr const char* kCounterClockwise = "ccw";
inline constexpr const char* kClockwise = "cw";
///@}

[[nodiscard]] constexpr std::string_view WordOf(Sense sense) {
  return sense == Sense::kClockwise ? kClockwise : kCounterClockwise;
}

}  // namespace kestrin::tool
