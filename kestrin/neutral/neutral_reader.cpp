#include "kestrin/neutral/neutral_reader.h"

#include <algorithm>
#include <memory>
#include <utility>

#include "kestrin/base/numbers.h"
#include "kestrin/neutral/component_properties.h"
#include "kestrin/records/append.h"
#include "kestrin/text/fields.h"
#include "kestrin/text/trim.h"

namespace kestrin {
namespace {

constexpr std::string_view kBoardHeader = "###Board Information";
constexpr std::string_view kNetsHeader = "###Nets";
constexpr std::string_view kComponentHeader = "###Component";

/// The number after the last ":", as in "X:12.5".
double NumberAfterColon(std::string_view value) {
  return ToDouble(value.substr(value.rfind(':') + 1));  // npos + 1 is 0
}

/// Records outside the selected section are ignored.
OwnerState OwnerIn(bool isSelected) { return isSelected ? OwnerState::kThere : OwnerState::kElsewhere; }

OwnerState OwnerIn(bool isSelected, const void* owner) {
  return isSelected && owner == nullptr ? OwnerState::kMissing : OwnerIn(isSelected);
}

}  // namespace

struct NeutralReader::Table {
  using Reader = NeutralReader;
  using Owner = kestrin::Owner<Reader>;
  static constexpr Owner kBoardSection{
      "", [](const Reader& reader) { return OwnerIn(reader.InFirstBoardSection()); }};
  static constexpr Owner kNetsSection{"",
                                      [](const Reader& reader) { return OwnerIn(reader.InSelectedNets()); }};
  static constexpr Owner kComponentSection{
      "", [](const Reader& reader) { return OwnerIn(reader.InSelectedComponents()); }};
  static constexpr Owner kCurrentNet{
      "a NET before it", [](const Reader& reader) { return OwnerIn(reader.InSelectedNets(), reader.net_); }};
  static constexpr Owner kCurrentComponent{"a COMP before it", [](const Reader& reader) {
                                             return OwnerIn(reader.InSelectedComponents(), reader.component_);
                                           }};
  static constexpr Row kRows[] = {
      // the most frequent first
      {"N_PIN", AtLeast(5), kCurrentNet, &Reader::AddPin},
      Row("C_PIN"),
      {"NET", Exactly(1), kNetsSection, &Reader::AddNet},
      Row("N_PROP"),
      {"COMP", Exactly(8), kComponentSection, &Reader::AddComponent, "....ddii"},
      {"C_PROP", Any(), kCurrentComponent, &Reader::AddProperties},
      {"P_ADDP", Exactly(8), kNobody, &Reader::AddPlacement, "...ddiii"},
      {"BOARD", Exactly(6), kBoardSection, &Reader::SetBoard},
      {"B_UNITS", Exactly(1), kNobody, &Reader::SetUnits},
      Row("N_VIA"),
      Row("HOLE"),
      Row("B_ATTR"),
      Row("G_ATTR"),
      Row("G_PIN"),
      Row("GEOM"),
  };
  static constexpr KeywordTable kByKeyword{kRows};
};

void NeutralReader::ForEachWord(const FormatWordVisitor& visit) {
  ForEachRowName(Table::kRows, visit);
  for (const std::string_view header : {kBoardHeader, kNetsHeader, kComponentHeader})
    visit({.text = header, .place = WordPlace::kInside});
  visit({.text = kReferenceLocations});
}

LineOutcome NeutralReader::ReadLine(std::string_view line) {
  if (line.starts_with('#')) {
    CountSection(line);
    return LineOutcome::Ignored();
  }
  if (TrimmedLeft(line).empty()) return LineOutcome::Ignored();
  std::size_t position = 0;
  const std::string_view word = NextToken(line, ' ', position).value_or(std::string_view());
  const Row* row = Table::kByKeyword.Find(Keyword(word));
  if (row == nullptr) return LineOutcome::Skipped(SkipCode::kUnknownRecord);
  if (row->read == nullptr) return LineOutcome::Ignored();
  const OwnerState owner = row->FindOwner(*this);
  if (owner == OwnerState::kElsewhere) return LineOutcome::Ignored();
  if (position == line.size()) return LineOutcome::Skipped(SkipCode::kUnendedKeyword);
  rest_ = line.substr(position + 1);
  values_.Begin(rest_);
  if (!row->values.AcceptsValuesOf(values_)) return SkipForValueCount(*row);
  return owner == OwnerState::kThere ? (this->*row->read)() : LineOutcome::NoOwner(*row);
}

void NeutralReader::ForEachMisreadNumber(std::string_view line, const NumberAction& action) {
  std::size_t position = 0;
  const Row* row =
      Table::kByKeyword.Find(Keyword(NextToken(line, ' ', position).value_or(std::string_view())));
  if (row != nullptr) row->kinds.ForEachMisreadNumber(ValuesFrom(values_, 0), action);
}

LineOutcome NeutralReader::SkipForValueCount(const Row& row) {
  // Every BOARD line updates the selection. One that cannot be read does so for the board named last.
  if (row.read == &NeutralReader::SetBoard) chooser_.Choose(selection_);
  return LineOutcome::WrongValueCount(row, values_.Count());
}

void NeutralReader::CountSection(std::string_view header) {
  if (header.starts_with(kBoardHeader)) ++boardSections_;
  if (header.starts_with(kNetsHeader)) ++selection_.netsSections;
  if (header.starts_with(kComponentHeader)) ++selection_.componentSections;
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
  chooser_.SetBoard(Value(1));
  components_.m_dBoardValue3 = NumberAfterColon(Value(3));
  components_.m_dBoardValue4 = NumberAfterColon(Value(4));
  chooser_.Choose(selection_);
  return LineOutcome::Imported();
}

LineOutcome NeutralReader::SetUnits() {
  components_.m_sUnits = Value(1);
  records_.NoteLineOf(&components_.m_sUnits);
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
  const std::string_view name = PinName(Value(1));
  const std::size_t hyphen = name.find('-');
  auto pin = records_.Make<CMRefPin>();
  if (hyphen != std::string_view::npos) pin->m_sRef = name.substr(0, hyphen);
  pin->m_sPin = name.substr(hyphen + 1);  // npos + 1 is 0
  Append(*net_->m_pPins, std::move(pin));
  return LineOutcome::Imported();
}

/// The name without apostrophes and with "_" for each blank. Only quoted values contain blanks.
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
  std::size_t position = 0;
  while (const auto item = NextPropertyGroup(rest_, position, scratch_))
    AddProperty(*component_, records_, *item);
  return LineOutcome::Imported();
}

}  // namespace kestrin
