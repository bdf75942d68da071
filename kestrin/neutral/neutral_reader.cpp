#include "kestrin/neutral/neutral_reader.h"

#include <algorithm>
#include <limits>
#include <memory>
#include <utility>

#include "kestrin/neutral/component_properties.h"
#include "kestrin/platform/numbers.h"
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
  RecordRule rule;  // the keyword, and what the record takes
  bool cutsValues = false;
  std::size_t fewest = 0;
  std::size_t most = kNoLimit;
  bool (NeutralReader::*isTaken)() const = nullptr;
  LineOutcome (NeutralReader::*read)() = nullptr;  // null for a record that carries nothing for the models
};

struct NeutralReader::Records {
  using Reader = NeutralReader;
  static constexpr Record kTable[] = {
      {{"N_PIN", "at least 5 values"}, true, 5, kNoLimit, &Reader::InSelectedNets, &Reader::AddPin},
      {{"NET", "exactly 1 value"}, true, 1, 1, &Reader::InSelectedNets, &Reader::AddNet},
      {{"COMP", "exactly 8 values"}, true, 8, 8, &Reader::InSelectedComponents, &Reader::AddComponent},
      {{"C_PROP", ""}, false, 0, kNoLimit, &Reader::InSelectedComponents, &Reader::AddProperties},
      {{"P_ADDP", "exactly 8 values"}, true, 8, 8, &Reader::Always, &Reader::AddPlacement},
      {kBoardValues, true, 0, kNoLimit, &Reader::InFirstBoardSection, &Reader::SetBoard},
      {{"B_UNITS", "exactly 1 value"}, true, 1, 1, &Reader::Always, &Reader::SetUnits},
      {{"C_PIN", ""}},
      {{"N_PROP", ""}},
      {{"N_VIA", ""}},
      {{"HOLE", ""}},
      {{"B_ATTR", ""}},
      {{"G_ATTR", ""}},
      {{"G_PIN", ""}},
      {{"GEOM", ""}},
  };

  static const Record* Find(std::string_view keyword) {
    const auto* found = std::find_if(std::begin(kTable), std::end(kTable),
                                     [&](const Record& record) { return record.rule.record == keyword; });
    return found == std::end(kTable) ? nullptr : found;
  }
};

LineOutcome NeutralReader::ReadLine(std::string_view line) {
  if (line.starts_with('#')) {
    CountSection(line);
    return LineOutcome::Ignored();
  }
  if (TrimmedLeft(line).empty()) return LineOutcome::Ignored();
  const std::size_t start = line.find_first_not_of(' ');
  const std::size_t end = line.find(' ', start);
  const Record* record = Records::Find(line.substr(start, end - start));
  if (record == nullptr) return LineOutcome::Skipped(SkipCode::kUnknownRecord);
  if (record->read == nullptr || !(this->*record->isTaken)()) return LineOutcome::Ignored();
  if (end == std::string_view::npos) return LineOutcome::Skipped(SkipCode::kUnendedKeyword);
  rest_ = line.substr(end + 1);
  return ReadRecord(*record);
}

void NeutralReader::CountSection(std::string_view header) {
  if (header.starts_with("###Board Information")) ++boardSections_;
  if (header.starts_with("###Nets")) ++selection_.netsSections;
  if (header.starts_with("###Component")) ++selection_.componentSections;
}

LineOutcome NeutralReader::ReadRecord(const Record& record) {
  if (record.cutsValues) {
    CutValues();
    if (valueCount_ < record.fewest || valueCount_ > record.most) {
      return LineOutcome::WrongValueCount(record.rule, valueCount_);
    }
  }
  return (this->*record.read)();
}

void NeutralReader::CutValues() {
  valueCount_ = 0;
  std::size_t position = 0;
  while (const auto value = NextSpaceField(rest_, position)) {
    if (valueCount_ < values_.size()) values_[valueCount_] = *value;
    ++valueCount_;
  }
}

LineOutcome NeutralReader::AddPlacement() {
  auto placement = records_.Make<CMCompsPanel>();
  placement->m_sBoardName = Value(2);
  placement->m_dValue4 = ToDouble(Value(4));
  placement->m_dValue5 = ToDouble(Value(5));
  placement->m_nValue6 = ToInt(Value(6));
  placement->m_nValue7 = ToInt(Value(7));
  placement->m_nValue8 = ToInt(Value(8));
  chooser_.AddPlacement(*components_.m_pPanels->Append(std::move(placement)));
  return LineOutcome::Imported();
}

LineOutcome NeutralReader::SetBoard() {
  const bool complete = valueCount_ == 6;
  if (complete) {
    boardName_ = Value(1);
    components_.m_dBoardValue3 = NumberBehindColon(Value(3));
    components_.m_dBoardValue4 = NumberBehindColon(Value(4));
  }
  chooser_.Choose(boardName_, selection_);  // also by the name of an earlier record
  return complete ? LineOutcome::Imported() : LineOutcome::WrongValueCount(kBoardValues, valueCount_);
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
  net_ = nets_.m_pNets->Append(std::move(net));
  return LineOutcome::Imported();
}

LineOutcome NeutralReader::AddPin() {
  if (net_ == nullptr) return LineOutcome::Skipped(SkipCode::kNoOwner, kPinOwner);
  scratch_ = Value(1);
  std::replace(scratch_.begin(), scratch_.end(), ' ', '_');
  std::erase(scratch_, '\'');
  const std::string_view name = scratch_;
  const std::size_t hyphen = name.find('-');
  auto pin = records_.Make<CMRefPin>();
  if (hyphen != std::string_view::npos) pin->m_sRef = name.substr(0, hyphen);
  pin->m_sPin = name.substr(hyphen + 1);  // npos + 1 is 0
  net_->m_pPins->Append(std::move(pin));
  return LineOutcome::Imported();
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
  component_ = components_.m_pInfos->Append(std::move(component));
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
