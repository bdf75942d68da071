#include "kestrin/text/fields.h"

namespace kestrin {
namespace {

template <class IsDelimiter>
std::optional<std::string_view> NextTokenUntil(std::string_view text, std::size_t& position,
                                               IsDelimiter isDelimiter) {
  while (position < text.size() && isDelimiter(text[position])) ++position;
  if (position >= text.size()) return std::nullopt;
  const std::size_t start = position;
  while (position < text.size() && !isDelimiter(text[position])) ++position;
  return text.substr(start, position - start);
}

/// The next field between separators, which do not separate between quotes.
template <class IsQuote>
std::optional<std::string_view> NextQuotedField(std::string_view line, std::size_t& position, char separator,
                                                IsQuote isQuote) {
  std::size_t start = position;
  while (start < line.size() && line[start] == separator) ++start;
  std::size_t end = start;
  bool quoted = false;
  for (; end < line.size() && (line[end] != separator || quoted); ++end) quoted ^= isQuote(end);
  position = end;
  if (start == end) return std::nullopt;
  return line.substr(start, end - start);
}

}  // namespace

void AddCharacters(CharacterSet& set, std::string_view characters) {
  for (const char c : characters) set.set(static_cast<unsigned char>(c));
}

std::optional<std::string_view> NextToken(std::string_view text, const CharacterSet& delimiters,
                                          std::size_t& position) {
  return NextTokenUntil(text, position, [&](char c) { return delimiters[static_cast<unsigned char>(c)]; });
}

std::optional<std::string_view> NextToken(std::string_view text, char delimiter, std::size_t& position) {
  return NextTokenUntil(text, position, [=](char c) { return c == delimiter; });
}

std::optional<std::string_view> NextCommaField(std::string_view line, std::size_t& position) {
  const auto isQuote = [line](std::size_t i) { return line[i] == '"' && (i == 0 || line[i - 1] != '\\'); };
  return NextQuotedField(line, position, ',', isQuote);
}

std::optional<std::string_view> NextSpaceField(std::string_view line, std::size_t& position) {
  return NextQuotedField(line, position, ' ', [line](std::size_t i) { return line[i] == '\''; });
}

std::optional<std::string_view> NextPropertyGroup(std::string_view line, std::size_t& position,
                                                  std::string& scratch) {
  scratch.clear();
  bool quoted = false;
  while (position < line.size()) {
    const char c = line[position++];
    if (c == '"') quoted = !quoted;
    if (c == ' ' && !quoted) continue;
    scratch += c;
    if (c != ')' || quoted) continue;
    if (scratch.front() == '(') return scratch;
    scratch.clear();
  }
  if (scratch.empty()) return std::nullopt;
  return scratch;
}

}  // namespace kestrin
