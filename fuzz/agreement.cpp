#include "fuzz/agreement.h"

#include <algorithm>
#include <memory>
#include <utility>
#include <vector>

#include "fuzz/checks.h"
#include "kestrin/base/characters.h"
#include "kestrin/records/append.h"

namespace kestrin::fuzz {
namespace {

constexpr std::string_view kCodes[] = {"ANT", "ARE", "ARS", "CHG", "FIL", "GUI", "INC", "ISL", "ISS",  "SEG",
                                       "ST",  "TET", "TTI", "TTT", "VER", "WIR", "XRF", "PRP", "UNITS"};

bool IsCode(std::string_view text) {
  return std::find(std::begin(kCodes), std::end(kCodes), text) != std::end(kCodes);
}

template <class Accepts>
bool All(std::string_view text, Accepts accepts) {
  return !text.empty() && std::all_of(text.begin(), text.end(), accepts);
}

bool IsCapital(char c) { return c >= 'A' && c <= 'Z'; }

/// An integer without leading zeros that fits an int: converting it to a number and back yields the same
/// text.
bool IsPlainInteger(std::string_view text) {
  if (text == "0") return true;
  if (text.starts_with('-')) text.remove_prefix(1);
  return All(text, IsDigit) && text.front() != '0' && text.size() <= 9;
}

bool IsReal(std::string_view text) {
  if (text.starts_with('-')) text.remove_prefix(1);
  const std::size_t point = text.find('.');
  return point != std::string_view::npos && All(text.substr(0, point), IsDigit) &&
         All(text.substr(point + 1), IsDigit);
}

bool IsWord(std::string_view text) {
  if (text.starts_with('$')) return All(text, [](char c) { return IsCapital(c) || c == '$'; });
  const std::size_t underscore = text.find('_');
  const std::string_view letters = text.substr(0, underscore);
  if (!All(letters, IsCapital) || letters.starts_with("PRP")) return false;
  return underscore == std::string_view::npos || All(text.substr(underscore + 1), IsDigit);
}

bool IsQuoted(std::string_view text) {
  return text.size() > 2 && text.front() == '\'' && text.find('\'', 1) == text.size() - 1;
}

bool IsPlainSegValue(std::string_view text) {
  return All(text, [](char c) { return IsCapital(c) || IsDigit(c) || c == '_' || c == '-' || c == '.'; }) &&
         !text.starts_with("PRP");
}

/// The values between the blanks of a line. Blanks between apostrophes do not separate.
std::vector<std::string_view> ValuesOf(std::string_view line) {
  std::vector<std::string_view> values;
  std::size_t start = 0;
  bool quoted = false;
  for (std::size_t i = 0; i <= line.size(); ++i) {
    if (i < line.size() && line[i] == '\'') quoted = !quoted;
    if (i < line.size() && (line[i] != ' ' || quoted)) continue;
    if (i > start) values.push_back(line.substr(start, i - start));
    start = i + 1;
  }
  return values;
}

bool IsPlainValue(bool inSegment, std::size_t number, std::string_view value) {
  constexpr std::size_t kLongest = 255;
  if (value.size() > kLongest || IsCode(value)) return false;
  const bool isNumber = IsPlainInteger(value) || IsReal(value);
  if (!inSegment) return isNumber || IsWord(value) || IsQuoted(value);
  return number <= 3 ? isNumber : IsPlainSegValue(value);
}

bool IsPlainRecord(std::string_view line) {
  const std::vector<std::string_view> values = ValuesOf(line);
  if (values.empty()) return true;
  if (!IsCode(values[0])) return false;
  const bool isReference =
      values[0] == "XRF" && line.ends_with(')') && line.find('\'') == std::string_view::npos;
  for (std::size_t number = 1; number < values.size(); ++number) {
    if (isReference && number > 2 && values[number].starts_with('(')) return true;  // a note ends the line
    if (!IsPlainValue(values[0] == "SEG", number, values[number])) return false;
  }
  return true;
}

bool IsPlainLine(std::string_view line) {
  constexpr std::string_view kHeader = "# NET ";
  if (!std::all_of(line.begin(), line.end(), [](char c) { return c >= ' ' && c <= '~'; })) return false;
  if (line.starts_with(kHeader)) {
    const std::string_view name = line.substr(kHeader.size());
    return IsQuoted(name) && name.size() < 250;
  }
  const bool isComment = line.starts_with("# Application ") || line.starts_with("# BOARD") ||
                         line.starts_with("# date") || line.starts_with("# STI") || line.starts_with("PRP ");
  if (isComment) return line.find('\'') == std::string_view::npos && line.size() > 14;
  return IsPlainRecord(line);
}

template <class Record>
void MoveRecords(RecordArray<Record>& from, RecordArray<Record>& to) {
  to.Append(from);
  from.RemoveAll();
}

}  // namespace

bool IsPlain(std::string_view text) {
  const auto lines = LinesOf(text);
  return text.find('\r') == std::string_view::npos && std::all_of(lines.begin(), lines.end(), IsPlainLine);
}

void RemoveDifferences(CMTraces& traces) {
  Owning<RecordArray<CMTracesFIL>> fills;
  fills.Swap(*traces.m_pFilArray);
  auto rest = std::make_unique<CMTracesFIL>();
  for (CMTracesFIL*& fill : fills) {
    MoveRecords(*fill->m_pAreArray, *rest->m_pAreArray);
    MoveRecords(*fill->m_pArsArray, *rest->m_pArsArray);
    MoveRecords(*fill->m_pIslArray, *rest->m_pIslArray);
    MoveRecords(*fill->m_pIssArray, *rest->m_pIssArray);
    MoveRecords(*fill->m_pTtiArray, *rest->m_pTtiArray);
    // Only a fill with a FIL line has vertices of its own.
    if (!fill->m_pVerArray->IsEmpty()) {
      traces.m_pFilArray->Add(std::exchange(fill, nullptr));
    }
  }
  for (CMTracesTTI* record : *rest->m_pTtiArray) {
    record->m_sName1.Empty();
    record->m_sName2.Empty();
  }
  Append(*traces.m_pFilArray, std::move(rest));
}

}  // namespace kestrin::fuzz
