#include "kestrin/traces/traces_reader.h"

#include <memory>
#include <utility>

#include "kestrin/base/characters.h"
#include "kestrin/records/append.h"
#include "kestrin/text/trim.h"
#include "kestrin/traces/record_values.h"
#include "kestrin/traces/shared_rules.h"

namespace kestrin {
namespace {

constexpr std::string_view kNetWord = "NET";
constexpr std::string_view kProperty = "PRP ";

/// Whether a comment looks like a net header but is not one, so that its net is missed.
bool IsMissedNetHeader(std::string_view comment) {
  const std::string_view text = TrimmedLeft(comment.substr(1));
  if (!text.starts_with(kNetWord)) return false;
  const std::string_view rest = text.substr(kNetWord.size());
  return rest.empty() || IsSpace(rest.front()) || rest.front() == '\'';
}

/// Whether a line without a known code may be ignored: blank lines, properties, notes in parentheses and
/// comments.
bool IsIgnorable(std::string_view line) {
  const std::string_view text = Trimmed(line);
  if (text.empty() || text.starts_with(kProperty)) return true;
  if (text.front() == '#') return !IsMissedNetHeader(text);
  return text.front() == '(' && text.back() == ')';
}

OwnerState OwnerAt(const void* owner) { return owner == nullptr ? OwnerState::kMissing : OwnerState::kThere; }

}  // namespace

struct TracesReader::Table {
  using Reader = TracesReader;
  using Owner = kestrin::Owner<Reader>;
  using Form = ValueKinds::Form;
  static constexpr Owner kNet{"a net header before it",
                              [](const Reader& reader) { return OwnerAt(reader.net_); }};
  static constexpr Owner kFill{"a FIL, ARE or ARS before it and after the last net header",
                               [](const Reader& reader) { return OwnerAt(reader.fill_); }};
  static constexpr Owner kSegments{"a WIR of at least 5 values, an INC or an ANT before it",
                                   [](const Reader& reader) { return OwnerAt(reader.segments_); }};
  static constexpr Owner kVertices{"a FIL, ARE, ARS, ISL or ISS before it",
                                   [](const Reader& reader) { return OwnerAt(reader.vertices_); }};
  static constexpr const char* kWire = "idddd";
  static constexpr const char* kIncomplete = "iddiddt";
  static constexpr ValueKinds kArea{Form{Exactly(6), "...idi"}, Form{Exactly(8), "...idi.i"},
                                    Form{Exactly(13), "...idi.iidd.i"}};
  static constexpr ValueKinds kFillHeader{Form{Exactly(16), "...iiiiidiii"},
                                          Form{Exactly(21), "...iiiiidiii.iidd"}};
  static constexpr Row kRows[] = {
      // the most frequent first
      {"VER", AtLeast(2), kVertices, &Reader::AddVer, "dd"},
      {"SEG", AtLeast(1), kSegments, &Reader::AddSeg, "ddi"},  // value 4 may be a name
      {"WIR", AtLeast(1), kNet, &Reader::AddWir, {{AtLeast(5), kWire}}},
      {"ISL", AtLeast(1), kFill, &Reader::AddIsl, "i"},
      {"ISS", AtLeast(1), kFill, &Reader::AddIss, "i"},
      {"ARE", AtLeast(1), kNobody, &Reader::AddAre, kArea},
      {"ARS", AtLeast(1), kNobody, &Reader::AddArs, kArea},
      {"FIL", AtLeast(1), kNobody, &Reader::AddFil, kFillHeader},
      {"TTI", OneOf(3, 7), kFill, &Reader::AddTti, {{Exactly(3), "dd"}, {Exactly(7), "dd.iddi"}}},
      {"INC", Exactly(7), kNet, &Reader::AddInc, kIncomplete},
      {"ANT", OneOf(5, 7), kNet, &Reader::AddAnt, {{Exactly(5), kWire}, {Exactly(7), kIncomplete}}},
      {"GUI", AtLeast(6), kNet, &Reader::AddGui, "ddiddi"},
      {"CHG", AtLeast(6), kNet, &Reader::AddChg, "ddiddi"},
      {"XRF", AtLeast(2), kNobody, &Reader::AddXrf, "i"},
      {"TET", AtLeast(5), kNobody, &Reader::AddTet, "i.ddd"},
      {"TTT", AtLeast(5), kNobody, &Reader::AddTtt, "idiii"},
      {"UNITS", AtLeast(1), kNobody, &Reader::SetUnits},
      {"ST", OneOf(4, 6, 8), kNobody, &Reader::SetSt, {{Exactly(4), "ddii"}, {OneOf(6, 8), "iiiiii"}}},
  };
  static constexpr KeywordTable kByCode{kRows};
};

void TracesReader::ForEachWord(const FormatWordVisitor& visit) {
  // The strict reader finds a code even directly after a small letter.
  ForEachRowName(Table::kRows, visit, {.place = WordPlace::kCapitals});
  visit({.text = kNetWord});
  visit({.text = kProperty});
}

LineOutcome TracesReader::ReadLine(std::string_view line) {
  ++lineNumber_;
  const bool beginsQuoted = values_.IsQuoted();
  values_.Begin(line, beginsQuoted);
  const LineOutcome outcome = beginsQuoted ? SkipQuoted(line) : ReadRecord(line);
  values_.Finish();
  return outcome;
}

void TracesReader::CutLine(std::string_view line) {
  values_.Finish();
  values_.Begin(line, values_.IsQuoted());
}

void TracesReader::ForEachMisreadNumber(std::string_view /*line*/, const NumberAction& action) {
  if (!values_.Has(0)) return;
  const Row* row = Table::kByCode.Find(Keyword(values_.Text(0)));
  if (row != nullptr) row->kinds.ForEachMisreadNumber(ValuesFrom(values_, 1), action);
}

LineOutcome TracesReader::ReadRecord(std::string_view line) {
  quotingLine_ = lineNumber_;
  const Keyword code(values_.Has(0) ? values_.Text(0) : std::string_view());
  if (code == Keyword("#") && values_.Has(1) && values_.Text(1) == kNetWord) return AddNet();
  const Row* row = Table::kByCode.Find(code);
  if (row == nullptr) {
    return IsIgnorable(line) ? LineOutcome::Ignored() : LineOutcome::Skipped(SkipCode::kUnknownRecord);
  }
  // Where a row says AtLeast, a line with too few values is not skipped: reading the missing value raises. A
  // line without any values is skipped.
  const bool fits = row->values.IsOpenEnded() ? !values_.AtEnd() : row->values.Accepts(CountValues(values_));
  if (!fits) return LineOutcome::WrongValueCount(*row, CountValues(values_));
  if (row->FindOwner(*this) == OwnerState::kThere) return (this->*row->read)();
  static_cast<void>(values_.Text(row->values.fewest));  // a record without an owner raises too
  return LineOutcome::NoOwner(*row);
}

/// A line that begins inside an apostrophe has no code: its first value extends to the closing apostrophe.
LineOutcome TracesReader::SkipQuoted(std::string_view line) {
  if (Trimmed(line).empty()) return LineOutcome::Ignored();
  const LineOutcome outcome = LineOutcome::OpenQuote(quotingLine_);
  if (line.find('\'') != std::string_view::npos) quotingLine_ = lineNumber_;
  return outcome;
}

LineOutcome TracesReader::SetUnits() {
  model_.m_sUnits = values_.Text(1);
  records_.NoteLineOf(&model_.m_sUnits);
  return LineOutcome::Imported();
}

LineOutcome TracesReader::SetSt() {
  if (CountValues(values_) == 4) {
    model_.m_dStValue1 = values_.Double(1);
    model_.m_dStValue2 = values_.Double(2);
    model_.m_nStValue3 = values_.Int(3);
    model_.m_nStValue4 = values_.Int(4);
    return LineOutcome::Imported();
  }
  SetLongStValues(model_, values_.Int(1), values_.Int(2), values_.Int(3), values_.Int(4), values_.Int(5),
                  values_.Int(6));
  return LineOutcome::Imported();
}

LineOutcome TracesReader::AddXrf() {
  auto record = records_.Make<CMTracesXRF>();
  record->m_nValue1 = values_.Int(1);
  SetValue2(*record, values_.Text(2));
  Append(*model_.m_pXrfArray, std::move(record));
  return LineOutcome::Imported();
}

LineOutcome TracesReader::AddTet() {
  auto record = records_.Make<CMTracesTET>();
  record->m_nValue1 = values_.Int(1);
  record->m_sValue2 = values_.Text(2);
  record->m_dValue3 = values_.Double(3);
  record->m_dValue4 = values_.Double(4);
  record->m_dValue5 = values_.Double(5);
  Append(*model_.m_pTetArray, std::move(record));
  return LineOutcome::Imported();
}

LineOutcome TracesReader::AddTtt() {
  auto record = records_.Make<CMTracesTTT>();
  record->m_nValue1 = values_.Int(1);
  record->m_dValue2 = values_.Double(2);
  record->m_nValue3 = values_.Int(3);
  record->m_nValue4 = values_.Int(4);
  record->m_nValue5 = values_.Int(5);
  Append(*model_.m_pTttArray, std::move(record));
  return LineOutcome::Imported();
}

}  // namespace kestrin
