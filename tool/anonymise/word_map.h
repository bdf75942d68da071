#pragma once

/// @file
/// What each word of a set becomes.

#include <cstdint>
#include <map>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "tool/anonymise/format_words.h"
#include "tool/anonymise/keyed_hash.h"

namespace kestrin::tool {

/// The words of a set that are no words of the formats, and what each becomes: a word of equal length that no
/// other one becomes. Words are in capitals, so that names that differ only by case still do.
///
/// First add all words, then choose. Words are chosen in alphabetical order, so the result depends on the set
/// of words alone and not on their order.
class WordMap {
 public:
  explicit WordMap(const FormatWords& format) : format_(format) {}

  /// Adds a word of the set. Some of its letters can be fixed.
  void Add(std::string_view word, const std::vector<Span>& fixed);
  /// Makes the next choice for letters of a word another one.
  void Reject(std::string_view word, const std::vector<Span>& letters);

  /// Chooses what each word becomes. Raises std::runtime_error if words of a length are too many.
  void Choose(const KeyedHash& hash);

  /// What a word becomes, which has been added.
  [[nodiscard]] const std::string& ImageOf(std::string_view word) const {
    return words_.find(word)->second.image;
  }
  /// Calls an action with every word and its image.
  template <class Action>
  void ForEach(Action action) const {
    for (const auto& [word, entry] : words_) action(word, entry.image);
  }
  [[nodiscard]] std::size_t Size() const { return words_.size(); }

 private:
  struct Entry {
    std::string fixed;  // of the word's length, with a blank for each letter that is not fixed; or empty
    std::vector<Span> rejected;
    std::string image;
  };
  Entry& Of(std::string_view word);
  [[nodiscard]] bool IsFree(const std::string& image) const;
  [[nodiscard]] static std::string Candidate(const KeyedHash& hash, const std::string& word,
                                             const Entry& entry, std::uint64_t attempt);
  [[nodiscard]] std::string Image(const KeyedHash& hash, const std::string& word, const Entry& entry);
  [[nodiscard]] std::string ImageOfLast(const std::string& word, const Entry& entry);

  const FormatWords& format_;
  std::map<std::string, Entry, std::less<>> words_;
  std::set<std::string, std::less<>> taken_;
};

}  // namespace kestrin::tool
