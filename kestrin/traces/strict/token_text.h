#pragma once

/// @file
/// The texts that tokens of a Traces file carry from the scanner to the grammar.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kestrin {

/// A text on the parser's stack, which copies it more than once: a reference to one in TokenTexts.
class TokenText {
 public:
  /// The longest one; the rest of a longer text is passed over.
  static constexpr std::size_t kLongest = 255;

  operator std::string_view() const { return {place_->bytes.data(), place_->size}; }

 private:
  friend class TokenTexts;
  struct Place {
    std::uint8_t size;
    std::array<char, kLongest> bytes;
  };

  const Place* place_;
};

/// Texts of tokens, for as long as a rule needs them: the scanner's buffer moves on before a rule is
/// complete.
class TokenTexts {
 public:
  /// A copy of the beginning of a text, which stays until as many others were kept as there is room for.
  [[nodiscard]] TokenText Keep(std::string_view text) {
    const auto kept = text.substr(0, TokenText::kLongest);
    TokenText::Place& place = places_[next_++ % places_.size()];
    place.size = static_cast<std::uint8_t>(kept.size());
    std::copy(kept.begin(), kept.end(), place.bytes.begin());
    TokenText reference;
    reference.place_ = &place;
    return reference;
  }

 private:
  std::array<TokenText::Place, 16> places_{};  // rules have up to 6 texts, and there is the next token
  std::size_t next_ = 0;
};

}  // namespace kestrin
