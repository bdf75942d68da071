#pragma once

/// @file
/// The keywords of lines, and tables that are searched by keyword.

#include <array>
#include <cstddef>
#include <cstdint>
#include <stdexcept>
#include <string_view>

namespace kestrin {

/// A word of up to seven characters, packed into one integer, so that a table is searched by comparing
/// integers. All longer words are the same keyword, which is in no table.
class Keyword {
 public:
  static constexpr std::size_t kLongest = 7;

  constexpr Keyword() = default;
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
  std::uint64_t number_ = 0;
};

/// Finds the row of a keyword. Made at compile time from an array of rows, each with a member `name`. The
/// search is linear, so put the most frequent keywords first.
template <class Row, std::size_t Count>
class KeywordTable {
 public:
  constexpr explicit KeywordTable(const Row (&rows)[Count]) {
    for (std::size_t i = 0; i < Count; ++i) {
      if (rows[i].name.size() > Keyword::kLongest) throw std::length_error("a keyword is too long");
      entries_[i] = {Keyword(rows[i].name), &rows[i]};
    }
  }

  /// The row of the keyword; null if there is none.
  [[nodiscard]] constexpr const Row* Find(Keyword keyword) const {
    for (const Entry& entry : entries_) {
      if (entry.keyword == keyword) return entry.row;
    }
    return nullptr;
  }

 private:
  struct Entry {
    Keyword keyword;
    const Row* row = nullptr;
  };

  std::array<Entry, Count> entries_;
};

}  // namespace kestrin
