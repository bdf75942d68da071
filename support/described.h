#pragma once

/// @file
/// A model as a text that tests compare and people read:
///
///     board{name=B units=MM} pin{name=P terminalType=2 CIRCLE{layer=TOP size=5}}
///
/// A record shows the fields that are not as its constructor leaves them, under the short form of their
/// names: m_dDrillSize is drillSize. A record inside has the name of its field or list, or its type where it
/// has one. Fields that are numbered in sequence are a row, which ends with the last of them that is shown:
/// "st=(1 2)" for m_dStValue1 and m_dStValue2, "3=(S 4)" for m_sValue3 and m_nValue4, and just "1 2" where a
/// row of values begins with the first. A text that is empty or has blanks stands in square brackets.

#include <string>
#include <string_view>
#include <type_traits>
#include <vector>

#include "kestrin/geometry/geometry_fields.h"
#include "kestrin/neutral/neutral_fields.h"
#include "kestrin/records/fields.h"
#include "kestrin/tech/tech_fields.h"
#include "kestrin/traces/traces_fields.h"

namespace kestrin::test {

/// "drillSize" for "m_dDrillSize".
[[nodiscard]] std::string ShortName(std::string_view member);
/// "drill" for "m_pDrills", "seg" for "m_pSegArray".
[[nodiscard]] std::string ElementName(std::string_view member);

/// What a record says it is, if it does.
template <HasFields Record>
[[nodiscard]] std::string_view TypeOf(const Record& record) {
  if constexpr (requires { record.m_sType; }) return record.m_sType.View();
  if constexpr (requires { record.m_sDefinition; }) return record.m_sDefinition.View();
  return {};
}

/// The fields of a record as texts.
class FieldTexts {
 public:
  FieldTexts() = default;
  template <HasFields Record>
  explicit FieldTexts(const Record& record) {
    ForEachField(record, [this](std::string_view member, const auto& value) {
      if (member != "m_sType" && member != "m_sDefinition") this->Add(member, value);
    });
  }

  /// The fields that differ from the usual ones. What is not among these is usually zero or empty.
  [[nodiscard]] std::string ThatDifferFrom(const FieldTexts& usual) const;

 private:
  struct Field {
    std::string_view member;
    std::string text;  ///< has the name in it, unless the field is one number or text
    bool isEmpty;
    bool isSingle = false;
  };
  using Position = std::vector<Field>::const_iterator;
  static std::string RowText(Position first, Position shownEnd, bool isAlone);
  [[nodiscard]] bool Differs(const Field& field) const;

  void Add(std::string_view member, double number);
  void Add(std::string_view member, int number) { Add(member, static_cast<double>(number)); }
  void Add(std::string_view member, const CString& text);
  void Add(std::string_view member, const CArray<double, double>& numbers);
  void Add(std::string_view member, const CArray<CString, const CString&>& texts);
  void AddNamed(std::string_view member, std::string text, bool isEmpty);

  template <HasFields Record>
  void Add(std::string_view member, const Record& record);
  template <class Record>
  void Add(std::string_view member, const CArray<Record*, Record*>& records);
  template <class Value>
  void Add(std::string_view member, const Value* value) {
    if (value == nullptr) return AddNamed(member, ShortName(member) + "=null", false);
    Add(member, *value);
  }

  std::vector<Field> fields_;
};

/// The fields of a record that are not as its constructor leaves them, inside of its type if it has one.
template <HasFields Record>
[[nodiscard]] std::string Described(const Record& record) {
  static const FieldTexts kUsual{Record()};
  const std::string fields = FieldTexts(record).ThatDifferFrom(kUsual);
  const std::string type(TypeOf(record));
  return type.empty() ? fields : type + "{" + fields + "}";
}

/// What a record's constructor sets: the fields that are not zero or empty.
template <HasFields Record>
[[nodiscard]] std::string InitialFieldsOf() {
  return FieldTexts(Record()).ThatDifferFrom({});
}

template <HasFields Record>
std::string DescribedAs(const std::string& name, const Record& record) {
  return TypeOf(record).empty() ? name + "{" + Described(record) + "}" : Described(record);
}

template <HasFields Record>
void FieldTexts::Add(std::string_view member, const Record& record) {
  AddNamed(member, DescribedAs(ShortName(member), record), Described(record).empty());
}

template <class Record>
void FieldTexts::Add(std::string_view member, const CArray<Record*, Record*>& records) {
  std::string text;
  for (const Record* record : records) {
    const std::string name = ElementName(member);
    text += (text.empty() ? "" : " ") + (record == nullptr ? name + "=null" : DescribedAs(name, *record));
  }
  AddNamed(member, text, text.empty());
}

}  // namespace kestrin::test
