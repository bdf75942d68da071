#pragma once

/// @file
/// The words that say which record a line holds.

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace kestrin {

/// A word of up to seven characters, as one number: comparing it with every row of a table takes no time to
/// speak of. All longer words are the same keyword, which no table has.
class Keyword {
 public:
  static constexpr std::size_t kLongest = 7;

  constexpr explicit Keyword(std::string_view word) : number_(std::uint64_t{word.size()} << 56) {
    if (word.size() > kLongest) {
      number_ = ~std::uint64_t{0};
      return;
    }
    for (std::size_t i = 0; i < word.size(); ++i)
      number_ |= std::uint64_t{static_cast<unsigned char>(word[i])} << 8 * i;
  }

  friend constexpr bool operator==(Keyword, Keyword) = default;

 private:
  std::uint64_t number_;
};

}  // namespace kestrin
