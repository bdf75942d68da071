#pragma once

/// @file
/// The texts of tokens, between scanner and parser.

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kestrin {

/// A reference to a text in TokenTexts. It is small because the parser copies the values on its stack often.
class TokenText {
 public:
  /// Longer texts are cut to this length.
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

/// A ring buffer for the texts of tokens. A rule needs its texts until it is complete; the scanner overwrites
/// its own buffer before that.
class TokenTexts {
 public:
  /// Copies a text, cut to TokenText::kLongest. The copy is overwritten when the ring comes round.
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
  std::array<TokenText::Place, 16> places_{};  // enough: a rule has up to 6 texts, plus a look-ahead token
  std::size_t next_ = 0;
};

}  // namespace kestrin
