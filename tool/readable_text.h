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

/// The name of a file, which is UTF-8 on most machines, as valid UTF-8.
[[nodiscard]] std::string PathToUtf8(std::string_view path);

/// The same for a terminal.
[[nodiscard]] std::string PathToTerminal(std::string_view path);

}  // namespace kestrin::tool
