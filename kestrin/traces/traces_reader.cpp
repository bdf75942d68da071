#include "kestrin/traces/traces_reader.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <memory>
#include <utility>

#include "kestrin/base/characters.h"
#include "kestrin/records/append.h"
#include "kestrin/text/trim.h"
#include "kestrin/traces/record_values.h"
#include "kestrin/traces/shared_rules.h"

namespace kestrin {
namespace {

/// Whether a comment was meant as a net header but is not written like one, so that its net is missed.
bool IsMissedNetHeader(std::string_view comment) {
  constexpr std::string_view kWord = "NET";
  const std::string_view text = TrimmedLeft(comment.substr(1));
  if (!text.starts_with(kWord)) return false;
  const std::string_view rest = text.substr(kWord.size());
  return rest.empty() || IsSpace(rest.front()) || rest.front() == '\'';
}

/// Whether a line without a record is meant to have none: blank lines, properties, notes in parentheses,
/// comments.
bool CarriesNothing(std::string_view line) {
  const std::string_view text = Trimmed(line);
  if (text.empty() || text.starts_with("PRP ")) return true;
  if (text.front() == '#') return !IsMissedNetHeader(text);
  return text.front() == '(' && text.back() == ')';
}

}  // namespace

/// How the lines of a record code are read.
struct TracesReader::RecordKind {
  using ValueCounts = std::array<std::size_t, 3>;

  constexpr RecordKind(std::string_view recordCode, std::string_view valueDemand, ValueCounts acceptedCounts,
                       std::string_view ownerDemand, bool (TracesReader::*function)())
      : code(recordCode),
        values{recordCode, valueDemand},
        counts(acceptedCounts),
        owner{recordCode, ownerDemand},
        read(function) {}

  [[nodiscard]] bool Accepts(LineFields& line) const {
    if (line.AtEnd()) return false;  // a code that stands alone is never read
    return counts.front() == 0 || std::find(counts.begin(), counts.end(), CountValues(line)) != counts.end();
  }

  Keyword code;
  RecordRule values;
  ValueCounts counts;  // none: any number
  RecordRule owner;
  bool (TracesReader::*read)();
};

/// The kind of a record code, null for a code that is none.
const TracesReader::RecordKind* TracesReader::FindKind(Keyword code) {
  constexpr RecordKind::ValueCounts kAny{};
  constexpr std::string_view kNet = "a net header before it";
  constexpr std::string_view kFill = "a FIL, ARE or ARS before it, behind the last net header";
  static constexpr RecordKind kKinds[] = {
      // the most frequent first
      {"VER", "at least 2 values", kAny, "a FIL, ARE, ARS, ISL or ISS before it", &TracesReader::AddVer},
      {"SEG", "at least 1 value", kAny, "a WIR of at least 5 values, an INC or an ANT before it",
       &TracesReader::AddSeg},
      {"WIR", "at least 1 value", kAny, kNet, &TracesReader::AddWir},
      {"ISL", "at least 1 value", kAny, kFill, &TracesReader::AddIsl},
      {"ISS", "at least 1 value", kAny, kFill, &TracesReader::AddIss},
      {"ARE", "at least 1 value", kAny, "", &TracesReader::AddAre},
      {"ARS", "at least 1 value", kAny, "", &TracesReader::AddArs},
      {"FIL", "at least 1 value", kAny, "", &TracesReader::AddFil},
      {"TTI", "3 or 7 values", {3, 7}, kFill, &TracesReader::AddTti},
      {"INC", "7 values", {7}, kNet, &TracesReader::AddInc},
      {"ANT", "5 or 7 values", {5, 7}, kNet, &TracesReader::AddAnt},
      {"GUI", "at least 6 values", kAny, kNet, &TracesReader::AddGui},
      {"CHG", "at least 6 values", kAny, kNet, &TracesReader::AddChg},
      {"XRF", "at least 2 values", kAny, "", &TracesReader::AddXrf},
      {"TET", "at least 5 values", kAny, "", &TracesReader::AddTet},
      {"TTT", "at least 5 values", kAny, "", &TracesReader::AddTtt},
      {"UNITS", "at least 1 value", kAny, "", &TracesReader::SetUnits},
      {"ST", "4, 6 or 8 values", {4, 6, 8}, "", &TracesReader::SetSt},
  };
  const auto* found = std::find_if(std::begin(kKinds), std::end(kKinds),
                                   [code](const RecordKind& kind) { return kind.code == code; });
  return found == std::end(kKinds) ? nullptr : found;
}

LineOutcome TracesReader::ReadLine(std::string_view line) {
  ++lineNumber_;
  const bool beginsQuoted = values_.IsQuoted();
  values_.Begin(line, beginsQuoted);
  const LineOutcome outcome = beginsQuoted ? SkipQuoted(line) : ReadRecord(line);
  values_.Finish();
  return outcome;
}

LineOutcome TracesReader::ReadRecord(std::string_view line) {
  quotingLine_ = lineNumber_;
  const Keyword code(values_.Has(0) ? values_.Text(0) : std::string_view());
  if (code == Keyword("#") && values_.Has(1) && values_.Text(1) == "NET") {
    AddNet();
    return LineOutcome::Imported();
  }
  if (const RecordKind* kind = FindKind(code)) {
    if (!kind->Accepts(values_)) return LineOutcome::WrongValueCount(kind->values, CountValues(values_));
    return (this->*kind->read)() ? LineOutcome::Imported()
                                 : LineOutcome::Skipped(SkipCode::kNoOwner, kind->owner);
  }
  return CarriesNothing(line) ? LineOutcome::Ignored() : LineOutcome::Skipped(SkipCode::kUnknownRecord);
}

/// A line that begins inside an apostrophe has no code: what stands first reaches to the closing apostrophe.
LineOutcome TracesReader::SkipQuoted(std::string_view line) {
  if (Trimmed(line).empty()) return LineOutcome::Ignored();
  const LineOutcome outcome = LineOutcome::OpenQuote(quotingLine_);
  if (line.find('\'') != std::string_view::npos) quotingLine_ = lineNumber_;
  return outcome;
}

bool TracesReader::SetUnits() {
  model_.m_sUnits = values_.Text(1);
  return true;
}

bool TracesReader::SetSt() {
  if (CountValues(values_) == 4) {
    model_.m_dStValue1 = values_.Double(1);
    model_.m_dStValue2 = values_.Double(2);
    model_.m_nStValue3 = values_.Int(3);
    model_.m_nStValue4 = values_.Int(4);
    return true;
  }
  SetLongStValues(model_, values_.Int(1), values_.Int(2), values_.Int(3), values_.Int(4), values_.Int(5),
                  values_.Int(6));
  return true;
}

bool TracesReader::AddXrf() {
  auto record = records_.Make<CMTracesXRF>();
  record->m_nValue1 = values_.Int(1);
  SetValue2(*record, values_.Text(2));
  Append(*model_.m_pXrfArray, std::move(record));
  return true;
}

bool TracesReader::AddTet() {
  auto record = records_.Make<CMTracesTET>();
  record->m_nValue1 = values_.Int(1);
  record->m_sValue2 = values_.Text(2);
  record->m_dValue3 = values_.Double(3);
  record->m_dValue4 = values_.Double(4);
  record->m_dValue5 = values_.Double(5);
  Append(*model_.m_pTetArray, std::move(record));
  return true;
}

bool TracesReader::AddTtt() {
  auto record = records_.Make<CMTracesTTT>();
  record->m_nValue1 = values_.Int(1);
  record->m_dValue2 = values_.Double(2);
  record->m_nValue3 = values_.Int(3);
  record->m_nValue4 = values_.Int(4);
  record->m_nValue5 = values_.Int(5);
  Append(*model_.m_pTttArray, std::move(record));
  return true;
}

}  // namespace kestrin
