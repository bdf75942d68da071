#pragma once

/// @file
/// The files' bytes as text for people: a byte below 128 is its ASCII character, one from 128 on the code
/// point of the same number.

#include <string>
#include <string_view>

namespace kestrin::tool {

/// The bytes as UTF-8.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);

/// The same for a terminal: control characters are written as \xNN.
[[nodiscard]] std::string ToTerminal(std::string_view bytes);

}  // namespace kestrin::tool
