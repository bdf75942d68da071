#include "tool/anonymise/format_words.h"

#include <algorithm>

#include "kestrin/board/board_words.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/traces/strict/scanner_words.h"
#include "kestrin/traces/traces_reader.h"

namespace kestrin::tool {
namespace {

/// As in 1.5E-3: without it, numbers would change.
constexpr FormatWord kExponent{.text = "E", .ignoresCase = true};

bool BeginsWith(std::string_view text, const FormatWord& word) {
  const std::string_view start = text.substr(0, word.text.size());
  return start == word.text || (word.ignoresCase && EqualIgnoringCase(start, word.text));
}

std::string_view FromFirstFilled(std::string_view text) {
  const std::size_t first = text.find_first_not_of(" \t");
  return first == std::string_view::npos ? std::string_view() : text.substr(first);
}

}  // namespace

FormatWords::FormatWords() {
  const FormatWordVisitor add = [this](const FormatWord& word) { Add(word); };
  TechReader::ForEachWord(add);
  NeutralReader::ForEachWord(add);
  GeometryReader::ForEachWord(add);
  TracesReader::ForEachWord(add);
  ForEachScannerWord(add);
  ForEachLayerWord(add);
  ForEachUnitWord(add);
  add(kExponent);
}

void FormatWords::Add(const FormatWord& word) {
  ForEachRun(word.text, IsLetter, [&](Span run) {
    std::string capitals(run.In(word.text));
    for (char& c : capitals) c = ToUpper(c);
    runs_.insert(std::move(capitals));
  });
  switch (word.place) {
    case WordPlace::kWhole: break;
    case WordPlace::kInside:
      insideByFirst_[static_cast<unsigned char>(word.text.front())].push_back(word);
      if (word.ignoresCase && IsLetter(word.text.front()))
        insideByFirst_[static_cast<unsigned char>(ToLower(word.text.front()))].push_back(word);
      break;
    case WordPlace::kAfterHash: afterHash_.push_back(word.text); break;
    case WordPlace::kCapitals: capitals_.insert(word.text); break;
    case WordPlace::kCapitalsMore: capitalsMore_.push_back(word.text); break;
  }
}

void FormatWords::FindTouched(std::string_view line, std::vector<Span>& found) const {
  found.clear();
  for (std::size_t i = 0; i < line.size(); ++i) {
    const std::string_view rest = line.substr(i);
    for (const FormatWord& word : insideByFirst_[static_cast<unsigned char>(line[i])]) {
      if (BeginsWith(rest, word)) found.push_back({i, word.text.size()});
    }
    if (line[i] == '#') {
      const std::string_view text = FromFirstFilled(rest.substr(1));
      for (const std::string_view word : afterHash_) {
        if (text.starts_with(word)) found.push_back({line.size() - text.size(), word.size()});
      }
    }
    if (IsCapital(line[i]) && (i == 0 || !IsCapital(line[i - 1]))) FindCapitals(line, i, found);
  }
  std::sort(found.begin(), found.end());
}

/// Adds a word that the capitals at a place are or begin with. A code without letters around it is no news.
void FormatWords::FindCapitals(std::string_view line, std::size_t first, std::vector<Span>& found) const {
  std::size_t end = first;
  while (end < line.size() && IsCapital(line[end])) ++end;
  const std::string_view capitals = line.substr(first, end - first);
  for (const std::string_view word : capitalsMore_) {
    if (capitals.starts_with(word)) found.push_back({first, word.size()});
  }
  const bool isTouched =
      (first > 0 && IsLetter(line[first - 1])) || (end < line.size() && IsLetter(line[end]));
  if (isTouched && capitals_.contains(capitals)) found.push_back({first, capitals.size()});
}

}  // namespace kestrin::tool
