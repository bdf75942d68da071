#include "kestrin/session/tokenizer.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "kestrin/text/fields.h"

namespace kestrin {
namespace {

/// A character that does not occur in the string, to replace a longer delimiter; empty if all of them occur.
std::string Placeholder(std::string_view string) {
  constexpr std::string_view kCandidates = "!@#$%^";
  const auto* found = std::find_if(kCandidates.begin(), kCandidates.end(),
                                   [&](char c) { return string.find(c) == std::string_view::npos; });
  return found == kCandidates.end() ? std::string() : std::string(1, *found);
}

}  // namespace

CTokenizer::CTokenizer(const CString& string, const CString& delimiters) { Load(string, delimiters); }

void CTokenizer::Load(const CString& string, const CString& delimiters) {
  m_Delimiters.reset();
  SetDelimiters(delimiters);  // before the string changes, which may be the delimiters
  m_sString = string;
  m_nCurPos = 0;
}

void CTokenizer::SetDelimiters(const CString& delimiters) { AddCharacters(m_Delimiters, delimiters.View()); }

bool CTokenizer::Next(CString& token) {
  auto position = static_cast<std::size_t>(m_nCurPos);
  const auto next = NextToken(m_sString.View(), m_Delimiters, position);
  m_nCurPos = static_cast<int>(position);
  token = next.value_or(std::string_view());
  return next.has_value();
}

CString CTokenizer::Tail() const {
  auto position = static_cast<std::size_t>(m_nCurPos);
  const auto next = NextToken(m_sString.View(), m_Delimiters, position);
  return next ? m_sString.View().substr(position - next->size()) : std::string_view();
}

void CTokenizer::GetTokenArray(CStringArray& tokens) {
  auto position = static_cast<std::size_t>(m_nCurPos);
  while (const auto token = NextToken(m_sString.View(), m_Delimiters, position)) tokens.Add(*token);
  m_nCurPos = 0;
}

void CTokenizer::GetTokenArray(CStringArray& tokens, const CString& string, const CString& delimiters) {
  Load(string, delimiters);
  GetTokenArray(tokens);
}

void CTokenizer::GetTokenArrayByFullString(CStringArray& tokens, const CString& string,
                                           const CString& fullDelimiter) {
  const CString placeholder = Placeholder(string.View());
  CString replaced = string;
  replaced.Replace(fullDelimiter, placeholder);
  GetTokenArray(tokens, replaced, placeholder);
}

void CTokenizer::GetStringArrayFromStringToken(CString& string, CStringArray& entries) {
  CharacterSet space;
  AddCharacters(space, " ");
  std::string entry;
  bool open = false;  // the entry is a phrase whose closing quote has not come yet
  std::size_t position = 0;
  // The string may be one of the array's, which moves them as it grows.
  const std::string copy(string.View());
  while (const auto word = NextToken(copy, space, position)) {
    const auto quotes = std::count(word->begin(), word->end(), '"');
    open = open ? quotes == 0 : quotes == 1 && word->front() == '"';
    entry += *word;
    if (open) {
      entry += ' ';
      continue;
    }
    std::erase(entry, '"');
    entries.Add(entry);
    entry.clear();
  }
}

}  // namespace kestrin
