#pragma once

/// @file
/// How zero bytes of a file come through the scanner.

#include <cstddef>
#include <string>
#include <string_view>

namespace kestrin {

/// The scanner's automaton marks the end of its buffer with a zero byte. Where it finds one that is the
/// file's, it goes through the text around it again from the start: quadratic time. So a zero byte passes the
/// scanner as two other bytes, and so does the byte that begins such a pair.
///
/// No token changes by that: all three bytes are of the many that the scanner either skips, one or two
/// alike, or takes in runs of any length.
class ZeroEscapes {
 public:
  [[nodiscard]] static bool AreNeededIn(std::string_view bytes) {
    return Has(bytes, kZero) || Has(bytes, kLead);
  }

  /// Appends bytes of a file in the form in which they pass the scanner.
  static void Append(std::string& escaped, std::string_view bytes) {
    for (const char byte : bytes) {
      if (byte == kZero || byte == kLead) escaped += kLead;
      escaped += byte == kZero ? kAfterLead : byte;
    }
  }

  /// The bytes of the file that a token's text was made from, up to so many.
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
