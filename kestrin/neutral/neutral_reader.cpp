#include "kestrin/neutral/neutral_reader.h"

#include <algorithm>
#include <iterator>
#include <limits>
#include <memory>
#include <utility>

#include "kestrin/base/numbers.h"
#include "kestrin/neutral/component_properties.h"
#include "kestrin/records/append.h"
#include "kestrin/text/fields.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

constexpr std::size_t kNoLimit = std::numeric_limits<std::size_t>::max();

/// The number behind the last ":" of a value such as "X:12.5".
double NumberBehindColon(std::string_view value) {
  return ToDouble(value.substr(value.rfind(':') + 1));  // npos + 1 is 0
}

constexpr RecordRule kBoardValues{"BOARD", "exactly 6 values"};
constexpr RecordRule kPinOwner{"N_PIN", "a NET before it"};
constexpr RecordRule kPropertyOwner{"C_PROP", "a COMP before it"};

}  // namespace

/// A row of the table of records.
struct NeutralReader::Record {
  constexpr Record(const RecordRule& keywordAndValues, std::size_t fewestValues, std::size_t mostValues,
                   bool (NeutralReader::*condition)() const, LineOutcome (NeutralReader::*function)())
      : keyword(keywordAndValues.record),
        rule(keywordAndValues),
        fewest(fewestValues),
        most(mostValues),
        isTaken(condition),
        read(function) {}
  /// A record that carries nothing for the models.
  constexpr explicit Record(std::string_view word) : Record({word, ""}, 0, kNoLimit, nullptr, nullptr) {}

  [[nodiscard]] bool Accepts(LineFields& values) const {
    return (fewest == 0 || values.Has(fewest - 1)) && (most == kNoLimit || values.Count() <= most);
  }

  Keyword keyword;
  RecordRule rule;
  std::size_t fewest;
  std::size_t most;
  bool (NeutralReader::*isTaken)() const;
  LineOutcome (NeutralReader::*read)();
};

/// The record of a keyword, null for a word that is none.
const NeutralReader::Record* NeutralReader::Find(Keyword keyword) {
  using Reader = NeutralReader;
  static constexpr Record kRecords[] = {
      // the most frequent first
      {{"N_PIN", "at least 5 values"}, 5, kNoLimit, &Reader::InSelectedNets, &Reader::AddPin},
      Record("C_PIN"),
      {{"NET", "exactly 1 value"}, 1, 1, &Reader::InSelectedNets, &Reader::AddNet},
      Record("N_PROP"),
      {{"COMP", "exactly 8 values"}, 8, 8, &Reader::InSelectedComponents, &Reader::AddComponent},
      {{"C_PROP", ""}, 0, kNoLimit, &Reader::InSelectedComponents, &Reader::AddProperties},
      {{"P_ADDP", "exactly 8 values"}, 8, 8, &Reader::Always, &Reader::AddPlacement},
      {kBoardValues, 0, kNoLimit, &Reader::InFirstBoardSection, &Reader::SetBoard},
      {{"B_UNITS", "exactly 1 value"}, 1, 1, &Reader::Always, &Reader::SetUnits},
      Record("N_VIA"),
      Record("HOLE"),
      Record("B_ATTR"),
      Record("G_ATTR"),
      Record("G_PIN"),
      Record("GEOM"),
  };
  const auto* found = std::find_if(std::begin(kRecords), std::end(kRecords),
                                   [keyword](const Record& record) { return record.keyword == keyword; });
  return found == std::end(kRecords) ? nullptr : found;
}

LineOutcome NeutralReader::ReadLine(std::string_view line) {
  if (line.starts_with('#')) {
    CountSection(line);
    return LineOutcome::Ignored();
  }
  if (TrimmedLeft(line).empty()) return LineOutcome::Ignored();
  std::size_t position = 0;
  const std::string_view word = NextToken(line, ' ', position).value_or(std::string_view());
  const Record* record = Find(Keyword(word));
  if (record == nullptr) return LineOutcome::Skipped(SkipCode::kUnknownRecord);
  if (record->read == nullptr || !(this->*record->isTaken)()) return LineOutcome::Ignored();
  if (position == line.size()) return LineOutcome::Skipped(SkipCode::kUnendedKeyword);
  rest_ = line.substr(position + 1);
  values_.Begin(rest_);
  if (!record->Accepts(values_)) return LineOutcome::WrongValueCount(record->rule, values_.Count());
  return (this->*record->read)();
}

void NeutralReader::CountSection(std::string_view header) {
  if (header.starts_with("###Board Information")) ++boardSections_;
  if (header.starts_with("###Nets")) ++selection_.netsSections;
  if (header.starts_with("###Component")) ++selection_.componentSections;
}

LineOutcome NeutralReader::AddPlacement() {
  auto placement = records_.Make<CMCompsPanel>();
  placement->m_sBoardName = Value(2);
  placement->m_dValue4 = ToDouble(Value(4));
  placement->m_dValue5 = ToDouble(Value(5));
  placement->m_nValue6 = ToInt(Value(6));
  placement->m_nValue7 = ToInt(Value(7));
  placement->m_nValue8 = ToInt(Value(8));
  chooser_.AddPlacement(*Append(*components_.m_pPanels, std::move(placement)));
  return LineOutcome::Imported();
}

LineOutcome NeutralReader::SetBoard() {
  const bool complete = values_.Count() == 6;
  if (complete) {
    chooser_.SetBoard(Value(1));
    components_.m_dBoardValue3 = NumberBehindColon(Value(3));
    components_.m_dBoardValue4 = NumberBehindColon(Value(4));
  }
  chooser_.Choose(selection_);  // also for the board of an earlier record
  return complete ? LineOutcome::Imported() : LineOutcome::WrongValueCount(kBoardValues, values_.Count());
}

LineOutcome NeutralReader::SetUnits() {
  components_.m_sUnits = Value(1);
  return LineOutcome::Imported();
}

LineOutcome NeutralReader::AddNet() {
  scratch_ = Value(1);
  std::erase(scratch_, '\'');
  auto net = records_.Make<CMNetInfo>();
  net->m_sName = TrimmedRight(scratch_);
  net_ = Append(*nets_.m_pNets, std::move(net));
  return LineOutcome::Imported();
}

LineOutcome NeutralReader::AddPin() {
  if (net_ == nullptr) return LineOutcome::Skipped(SkipCode::kNoOwner, kPinOwner);
  const std::string_view name = PinName(Value(1));
  const std::size_t hyphen = name.find('-');
  auto pin = records_.Make<CMRefPin>();
  if (hyphen != std::string_view::npos) pin->m_sRef = name.substr(0, hyphen);
  pin->m_sPin = name.substr(hyphen + 1);  // npos + 1 is 0
  Append(*net_->m_pPins, std::move(pin));
  return LineOutcome::Imported();
}

/// Without apostrophes, and with "_" for the blanks that only stand between them.
std::string_view NeutralReader::PinName(std::string_view value) {
  if (value.find('\'') == std::string_view::npos) return value;
  scratch_ = value;
  std::replace(scratch_.begin(), scratch_.end(), ' ', '_');
  std::erase(scratch_, '\'');
  return scratch_;
}

LineOutcome NeutralReader::AddComponent() {
  auto component = records_.Make<CMCompsInfo>();
  tagMCOMPDATA& data = component->m_Data;
  data.m_sValue1 = Value(1);
  data.m_sValue2 = Value(2);
  data.m_sValue3 = Value(3);
  data.m_sValue4 = Value(4);
  data.m_dValue5 = ToDouble(Value(5));
  data.m_dValue6 = ToDouble(Value(6));
  data.m_nValue7 = ToInt(Value(7));
  data.m_nValue8 = ToInt(Value(8));
  component_ = Append(*components_.m_pInfos, std::move(component));
  return LineOutcome::Imported();
}

LineOutcome NeutralReader::AddProperties() {
  if (component_ == nullptr) return LineOutcome::Skipped(SkipCode::kNoOwner, kPropertyOwner);
  std::size_t position = 0;
  while (const auto item = NextPropertyGroup(rest_, position, scratch_))
    AddProperty(*component_, records_, *item);
  return LineOutcome::Imported();
}

}  // namespace kestrin
