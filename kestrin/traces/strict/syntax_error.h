#pragma once

/// @file
/// What the strict reader says of a place in a file that the grammar does not allow.

#include <bitset>
#include <cstdint>
#include <string>

#include "kestrin/base/export.h"

namespace kestrin {

/// A token that cannot stand where it does.
struct SyntaxError {
  std::int64_t line = 0;     ///< the number of line ends before the token
  int found = 0;             ///< the kind of the token, as the grammar counts them
  std::string text;          ///< its text, up to 255 bytes
  std::bitset<64> expected;  ///< the kinds that can stand there

  /// What was found and what was expected, in words.
  [[nodiscard]] KESTRIN_EXPORT std::string Describe() const;
};

}  // namespace kestrin
