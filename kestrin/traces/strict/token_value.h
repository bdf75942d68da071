#pragma once

/// @file
/// What a token of a Traces file carries from the scanner to the grammar.

#include <algorithm>
#include <array>
#include <cstddef>
#include <string_view>

namespace kestrin {

/// The value of a token: the member that its kind has, the others mean nothing. The parser copies it more
/// than once, so it owns nothing.
struct TokenValue {
  int whole = 0;
  double real = 0.0;
  std::string_view text;  // in the scanner's TokenTexts
};

/// Texts of tokens, for as long as a rule needs them: the scanner's buffer moves on before a rule is complete.
class TokenTexts {
 public:
  /// The longest text that a token keeps; the rest of a longer one is passed over.
  static constexpr std::size_t kLongest = 255;

  /// A copy of the beginning of a text, which stays until as many others were kept as there is room for.
  [[nodiscard]] std::string_view Keep(std::string_view text) {
    const auto kept = text.substr(0, kLongest);
    auto& place = places_[next_++ % places_.size()];
    std::copy(kept.begin(), kept.end(), place.begin());
    return {place.data(), kept.size()};
  }

 private:
  std::array<std::array<char, kLongest>, 16> places_{};  // rules have up to 6 texts, and there is the next token
  std::size_t next_ = 0;
};

}  // namespace kestrin
