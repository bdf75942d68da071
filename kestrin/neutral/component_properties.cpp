#include "kestrin/neutral/component_properties.h"

#include <memory>
#include <utility>

#include "kestrin/base/numbers.h"
#include "kestrin/records/append.h"
#include "kestrin/text/fields.h"

namespace kestrin {
namespace {

constexpr int kGroupSize = 10;
constexpr int kGroups = 3;

std::string_view BeforeFirstComma(std::string_view text) {
  const std::size_t comma = text.find(',');
  return comma == std::string_view::npos ? std::string_view() : text.substr(0, comma);
}

std::string_view BetweenFirstAndLastQuote(std::string_view text) {
  const std::size_t first = text.find('"');
  const std::size_t last = text.rfind('"');
  return first == last ? std::string_view() : text.substr(first + 1, last - first - 1);
}

/// Sets the value at a place of a group, counted from 1. Places 9 and 10 have the same field.
void SetGroupValue(CMCompsRefLoc& group, int place, std::string_view value) {
  switch (place) {
    case 1: group.m_dValue1 = ToDouble(value); break;
    case 2: group.m_dValue2 = ToDouble(value); break;
    case 3: group.m_nValue3 = ToInt(value); break;
    case 4: group.m_sValue4 = value; break;
    case 5: group.m_dValue5 = ToDouble(value); break;
    case 6: group.m_dValue6 = ToDouble(value); break;
    case 7: group.m_dValue7 = ToDouble(value); break;
    case 8: group.m_sValue8 = value; break;
    default: group.m_sValue9 = value; break;
  }
}

/// Reads a first value and up to three groups of ten values. Even an empty text makes a first group.
void AddReferenceLocations(CMCompsInfo& component, RecordPool& records, std::string_view text) {
  CMCompsRefLoc* group = Append(*component.m_pRefLocs, records.Make<CMCompsRefLoc>());
  std::size_t position = 0;
  const auto first = NextToken(text, ',', position);
  if (!first) return;
  component.m_sRefLocFirst = *first;
  for (int i = 0; i < kGroups * kGroupSize; ++i) {
    const auto value = NextToken(text, ',', position);
    if (!value) return;
    if (i > 0 && i % kGroupSize == 0) group = Append(*component.m_pRefLocs, records.Make<CMCompsRefLoc>());
    SetGroupValue(*group, i % kGroupSize + 1, *value);
  }
}

}  // namespace

void AddProperty(CMCompsInfo& component, RecordPool& records, std::string_view item) {
  item.remove_prefix(item.find('(') + 1);  // npos + 1 is 0
  const std::string_view name = BeforeFirstComma(item);
  const std::string_view value = BetweenFirstAndLastQuote(item);
  if (name == kReferenceLocations) return AddReferenceLocations(component, records, value);
  auto comment = records.Make<tagMCOMPCOMMENT>();
  comment->m_sName = name;
  comment->m_sValue = value;
  Append(*component.m_pComments, std::move(comment));
}

}  // namespace kestrin
