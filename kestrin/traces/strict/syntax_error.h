#pragma once

/// @file
/// A syntax error of a Traces file.

#include <bitset>
#include <cstdint>
#include <string>

#include "kestrin/base/export.h"

namespace kestrin {

/// A token that the grammar does not allow where it appears.
struct SyntaxError {
  std::int64_t line = 0;  ///< the number of line ends before the token: its line number less one
  int found = 0;     ///< the kind of the token, as a symbol number of the grammar; 0 is the end of the file
  std::string text;  ///< the first 255 bytes of the token's text
  std::bitset<64> expected;  ///< the kinds of token that the grammar allows there

  /// What was found and what was expected: "found a real number (3.5), expected a whole number".
  [[nodiscard]] KESTRIN_EXPORT std::string Describe() const;
};

}  // namespace kestrin
