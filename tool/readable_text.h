#pragma once

/// @file
/// Converting bytes of a file to text that can be printed. The encoding of a file is unknown, so each byte
/// becomes the code point of the same number: ASCII below 128.

#include <string>
#include <string_view>

namespace kestrin::tool {

/// Converts bytes to UTF-8.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);

/// Converts bytes to UTF-8 and writes control characters as \xNN.
[[nodiscard]] std::string ToTerminal(std::string_view bytes);

/// Returns a path unchanged if it is valid UTF-8; otherwise converts its bytes.
[[nodiscard]] std::string PathToUtf8(std::string_view path);

/// The same with control characters written as \xNN.
[[nodiscard]] std::string PathToTerminal(std::string_view path);

}  // namespace kestrin::tool
