#pragma once

/// @file
/// Escapes for zero bytes, which the scanner handles slowly.

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrin {

/// Replaces a zero byte by the pair 01 02, and a byte 01 by the pair 01 01.
///
/// Why? The automaton marks the end of its buffer with a zero byte. When it meets a zero byte of the file, it
/// scans the text before it again: quadratic time.
///
/// Why does that not change the tokens? The bytes 0, 1 and 2 are among those that the scanner either skips,
/// be it one or two, or accepts in runs of any length.
class ZeroEscapes {
 public:
  [[nodiscard]] static bool AreNeededIn(std::string_view bytes) {
    return Has(bytes, kZero) || Has(bytes, kLead);
  }

  /// Appends bytes of a file with escapes.
  static void Append(std::string& escaped, std::string_view bytes) {
    for (const char byte : bytes) {
      if (byte == kZero || byte == kLead) escaped += kLead;
      escaped += byte == kZero ? kAfterLead : byte;
    }
  }

  /// Removes the escapes from a token's text and returns the first bytes, at most longest.
  [[nodiscard]] static std::string Undone(std::string_view escaped, std::size_t longest) {
    std::string bytes;
    for (std::size_t i = 0; i < escaped.size() && bytes.size() < longest; ++i) {
      if (escaped[i] != kLead) {
        bytes += escaped[i];
      } else {
        bytes += escaped[++i] == kLead ? kLead : kZero;
      }
    }
    return bytes;
  }

 private:
  static constexpr char kZero = '\0';
  static constexpr char kLead = '\x01';
  static constexpr char kAfterLead = '\x02';

  static bool Has(std::string_view bytes, char byte) { return bytes.find(byte) != std::string_view::npos; }
};

}  // namespace kestrin
