#pragma once

/// @file
/// Converting bytes of a file to text that can be printed.

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrin::tool {

/// How the bytes of a text become characters. The formats do not say which encoding their files have.
enum class Encoding {
  kLatin1,  ///< each byte is the character with its number
  kUtf8,    ///< as it says; a byte that is not part of valid UTF-8 is the character with its number
};

///@{
/// The encoding of the files whose texts the calling thread prints. It is kLatin1 before it is set.
void SetEncoding(Encoding encoding);
[[nodiscard]] Encoding GetEncoding();
///@}

/// The number of bytes of the UTF-8 character at the start of some bytes; 0 if there is no valid one.
[[nodiscard]] std::size_t Utf8CharacterAt(std::string_view bytes);

/// Converts bytes to UTF-8.
[[nodiscard]] std::string ToUtf8(std::string_view bytes);

/// Converts bytes to UTF-8 and writes control characters as \xNN.
[[nodiscard]] std::string ToTerminal(std::string_view bytes);

///@{
/// The same for a path. It is UTF-8 where it is valid, whatever the encoding of files is.
[[nodiscard]] std::string PathToUtf8(std::string_view path);
[[nodiscard]] std::string PathToTerminal(std::string_view path);
///@}

}  // namespace kestrin::tool
