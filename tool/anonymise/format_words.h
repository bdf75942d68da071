#pragma once

/// @file
/// The words of the formats, from the readers' own tables.

#include <array>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/text/format_words.h"
#include "tool/anonymise/letters.h"

namespace kestrin::tool {

/// All words that the readers and the board compare texts with.
class FormatWords {
 public:
  FormatWords();

  /// Whether a run of letters, in capitals, is part of a word: PIN is, because of N_PIN.
  [[nodiscard]] bool Has(std::string_view capitals) const { return runs_.contains(capitals); }

  /// Finds the words that a reader would find in the line although other letters touch them, and replaces
  /// the list with their places, sorted.
  void FindTouched(std::string_view line, std::vector<Span>& found) const;

 private:
  void Add(const FormatWord& word);
  void FindCapitals(std::string_view line, std::size_t first, std::vector<Span>& found) const;

  std::set<std::string, std::less<>> runs_;
  std::array<std::vector<FormatWord>, 256> insideByFirst_;
  std::vector<std::string_view> afterHash_;
  std::set<std::string_view> capitals_;
  std::vector<std::string_view> capitalsMore_;
};

}  // namespace kestrin::tool
