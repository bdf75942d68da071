#pragma once

/// @file
/// Letters, and the runs of letters and digits in a line.

#include <array>
#include <cstddef>
#include <string_view>

#include "kestrin/base/characters.h"

namespace kestrin::tool {

[[nodiscard]] constexpr bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }

/// Whether a byte is a letter: one of ASCII, or any byte above 127.
[[nodiscard]] constexpr bool IsLetter(char c) {
  return IsCapital(ToUpper(c)) || static_cast<unsigned char>(c) > 127;
}

[[nodiscard]] constexpr bool IsLetterOrDigit(char c) { return IsLetter(c) || IsDigit(c); }

/// The letters that may replace a letter.
struct LetterKind {
  unsigned char first;
  unsigned char last;
};

/// The kind of a capital or a byte above 127. Bytes are replaced only by those that are valid at the same
/// places of UTF-8: so a text that is valid stays so, and one that is not stays invalid.
[[nodiscard]] constexpr LetterKind KindOf(char letter) {
  constexpr std::array kKinds{
      LetterKind{'A', 'Z'},   LetterKind{0x80, 0x8f}, LetterKind{0x90, 0x9f}, LetterKind{0xa0, 0xbf},
      LetterKind{0xc0, 0xc1}, LetterKind{0xc2, 0xdf}, LetterKind{0xe0, 0xe0}, LetterKind{0xe1, 0xec},
      LetterKind{0xed, 0xed}, LetterKind{0xee, 0xef}, LetterKind{0xf0, 0xf0}, LetterKind{0xf1, 0xf3},
      LetterKind{0xf4, 0xf4}, LetterKind{0xf5, 0xff},
  };
  const auto code = static_cast<unsigned char>(letter);
  for (const LetterKind kind : kKinds) {
    if (kind.first <= code && code <= kind.last) return kind;
  }
  return {code, code};
}

/// The bytes that some programs put before a text in UTF-8. They are no letters.
inline constexpr std::string_view kByteOrderMark = "\xef\xbb\xbf";

/// A part of a line.
struct Span {
  std::size_t first = 0;
  std::size_t size = 0;

  [[nodiscard]] std::size_t End() const { return first + size; }
  [[nodiscard]] std::string_view In(std::string_view line) const { return line.substr(first, size); }
  friend bool operator==(const Span&, const Span&) = default;
  friend bool operator<(Span a, Span b) { return a.first != b.first ? a.first < b.first : a.size < b.size; }
};

/// Calls an action with every longest run of characters of a class.
template <class IsOfClass, class Action>
void ForEachRun(std::string_view text, IsOfClass isOfClass, Action action) {
  std::size_t at = 0;
  const auto isInRun = [&] {
    return isOfClass(text[at]) && text.substr(at, kByteOrderMark.size()) != kByteOrderMark;
  };
  while (at < text.size()) {
    if (!isOfClass(text[at])) {
      ++at;
    } else if (!isInRun()) {
      at += kByteOrderMark.size();
    } else {
      const std::size_t first = at;
      while (at < text.size() && isInRun()) ++at;
      action(Span{first, at - first});
    }
  }
}

/// Calls an action with every line, without its line feed.
template <class Action>
void ForEachLine(std::string_view bytes, Action action) {
  while (!bytes.empty()) {
    const std::string_view line = bytes.substr(0, bytes.find('\n'));
    action(line);
    bytes.remove_prefix(line.size() < bytes.size() ? line.size() + 1 : line.size());
  }
}

}  // namespace kestrin::tool
