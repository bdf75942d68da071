#include "tool/anonymise/word_map.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "kestrin/text/contains.h"

namespace kestrin::tool {
namespace {

// Readers cut very long texts. Two words that begin alike still do in the copy, from the first letters on:
// what a letter becomes depends on the first ones and on those before its block.
constexpr std::size_t kHead = 32;
constexpr std::size_t kBlock = 16;
constexpr std::uint64_t kMostRejections = 1000;  // of a place

bool CanChange(const std::string& fixed, std::size_t i) { return fixed.empty() || fixed[i] == ' '; }

/// Makes the word the next one of its kind, like a counter. Returns false where it starts again.
bool Advance(std::string& word, const std::string& fixed) {
  for (std::size_t i = word.size(); i-- > 0;) {
    if (!CanChange(fixed, i)) continue;
    const LetterKind kind = KindOf(word[i]);
    if (static_cast<unsigned char>(word[i]) != kind.last) {
      ++word[i];
      return true;
    }
    word[i] = static_cast<char>(kind.first);
  }
  return false;
}

/// Whether no other word could replace the word.
bool IsFixed(const std::string& word, const std::string& fixed) {
  for (std::size_t i = 0; i < word.size(); ++i) {
    const LetterKind kind = KindOf(word[i]);
    if (CanChange(fixed, i) && kind.first != kind.last) return false;
  }
  return true;
}

bool AreOfOneKind(const std::string& a, const std::string& b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i) {
    if (KindOf(a[i]).first != KindOf(b[i]).first) return false;
  }
  return true;
}

}  // namespace

WordMap::Entry& WordMap::Of(std::string_view word) {
  const auto found = words_.find(word);
  return found != words_.end() ? found->second : words_.emplace(word, Entry{}).first->second;
}

void WordMap::Add(std::string_view word, const std::vector<Span>& fixed) {
  Entry& entry = Of(word);
  if (!fixed.empty() && entry.fixed.empty()) entry.fixed.assign(word.size(), ' ');
  for (const Span letters : fixed) entry.fixed.replace(letters.first, letters.size, letters.In(word));
}

void WordMap::Reject(std::string_view word, const std::vector<Span>& letters) {
  if (letters.empty()) return;
  Entry& entry = Of(word);
  entry.rejected.insert(entry.rejected.end(), letters.begin(), letters.end());
}

void WordMap::Choose(const KeyedHash& hash) {
  taken_.clear();
  for (auto& [word, entry] : words_) {
    entry.image = IsFixed(word, entry.fixed) ? word : std::string();
    if (!entry.image.empty()) taken_.insert(word);
  }
  for (auto& [word, entry] : words_) {
    if (!entry.image.empty()) continue;
    entry.image = Image(hash, word, entry);
    taken_.insert(entry.image);
  }
}

bool WordMap::IsFree(const std::string& image) const {
  return !format_.Has(image) && !taken_.contains(image) && !Contains(image, kByteOrderMark);
}

std::string WordMap::Candidate(const KeyedHash& hash, const std::string& word, const Entry& entry,
                               std::uint64_t attempt) {
  std::string image = word;
  const std::string_view head = std::string_view(word).substr(0, kHead);
  const auto choose = [&](char purpose, std::string_view seed, std::uint64_t number, Span letters) {
    const std::u16string choices = hash.Choices(purpose, seed, number, letters.size);
    for (std::size_t i = letters.first; i < letters.End(); ++i) {
      if (!CanChange(entry.fixed, i)) continue;
      const LetterKind kind = KindOf(word[i]);
      const int place = static_cast<unsigned char>(word[i]) - kind.first + choices[i - letters.first];
      image[i] = static_cast<char>(kind.first + place % (kind.last - kind.first + 1));
    }
  };
  choose('w', head, attempt, {0, head.size()});
  std::string seed(head);
  for (std::size_t first = kHead; first < word.size(); first += kBlock) {
    const Span block{first, std::min(kBlock, word.size() - first)};
    choose('b', seed, attempt, block);
    const std::u16string next = hash.Choices('s', seed + std::string(block.In(word)), 0, kBlock);
    seed.clear();
    for (const char16_t c : next) seed += {static_cast<char>(c >> 8), static_cast<char>(c & 0xff)};
  }
  std::map<Span, std::uint64_t> rejected;
  for (const Span letters : entry.rejected)
    choose('r', head, letters.first * kMostRejections + rejected[letters]++, letters);
  return image;
}

/// A free word that does not occur in the set. If most short words occur, one that does but not as itself.
std::string WordMap::Image(const KeyedHash& hash, const std::string& word, const Entry& entry) {
  constexpr std::uint64_t kAttempts = 100;
  constexpr int kSteps = 20000;  // more than there are words of three letters
  for (std::uint64_t i = 0; i < kAttempts; ++i) {
    std::string image = Candidate(hash, word, entry, i);
    if (IsFree(image) && !words_.contains(image)) return image;
  }
  std::string image = Candidate(hash, word, entry, 0);
  int wraps = 0;
  for (int i = 0; i < kSteps && wraps < 2; ++i) {
    if (image != word && IsFree(image)) return image;
    if (!Advance(image, entry.fixed)) ++wraps;
  }
  return ImageOfLast(word, entry);
}

/// For a word that is the only free one left: it changes places with another word.
std::string WordMap::ImageOfLast(const std::string& word, const Entry& entry) {
  if (!IsFree(word)) {
    throw std::runtime_error("cannot replace \"" + word + "\": there are too many words of its length");
  }
  if (!entry.fixed.empty()) return word;
  for (auto& [other, otherEntry] : words_) {
    if (otherEntry.image.empty() || otherEntry.image == other || !otherEntry.fixed.empty() ||
        !AreOfOneKind(word, other))
      continue;
    taken_.insert(word);
    return std::exchange(otherEntry.image, word);
  }
  return word;
}

}  // namespace kestrin::tool
