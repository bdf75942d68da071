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

/// The next field between separators. A separator between quotes is part of the field.
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

/// The end of a group in parentheses.
struct GroupEnd {
  std::size_t position;
  bool isClosed;   // by a parenthesis; false if the line ends first
  bool hasBlanks;  // outside double quotes
};

GroupEnd FindGroupEnd(std::string_view line, std::size_t start) {
  bool quoted = false;
  bool hasBlanks = false;
  for (std::size_t i = start; i < line.size(); ++i) {
    const char c = line[i];
    if (c == '"') quoted = !quoted;
    if (quoted) continue;
    hasBlanks |= c == ' ';
    if (c == ')') return {i + 1, true, hasBlanks};
  }
  return {line.size(), false, hasBlanks};
}

/// Keeps blanks between double quotes.
void CopyWithoutBlanks(std::string_view text, std::string& copy) {
  copy.clear();
  bool quoted = false;
  for (const char c : text) {
    if (c == '"') quoted = !quoted;
    if (c != ' ' || quoted) copy += c;
  }
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
  for (;;) {
    while (position < line.size() && line[position] == ' ') ++position;
    if (position >= line.size()) return std::nullopt;
    const GroupEnd end = FindGroupEnd(line, position);
    const std::string_view group = line.substr(position, end.position - position);
    position = end.position;
    if (end.isClosed && group.front() != '(') continue;
    if (!end.hasBlanks) return group;
    CopyWithoutBlanks(group, scratch);
    return scratch;
  }
}

}  // namespace kestrin
