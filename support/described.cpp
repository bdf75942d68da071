#include "support/described.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <utility>

namespace kestrin::test {
namespace {

std::string TextOf(double number) {
  char text[32];
  return {text, std::to_chars(text, text + sizeof text, number).ptr};
}

std::string TextOf(const CString& text) {
  const std::string bytes(text.View());
  return bytes.empty() || bytes.find(' ') != std::string::npos ? "[" + bytes + "]" : bytes;
}

/// A member's name, cut before its number: "value" and 3 for "m_nValue3".
struct NumberedName {
  explicit NumberedName(std::string_view member) : stem(ShortName(member)) {
    const std::size_t digits = stem.find_first_of("0123456789");
    if (digits == std::string::npos) return;
    std::from_chars(stem.data() + digits, stem.data() + stem.size(), number);
    stem.resize(digits);
  }

  [[nodiscard]] bool IsFollowedBy(const NumberedName& next) const {
    return number >= 0 && next.stem == stem && next.number >= number;
  }

  std::string stem;
  int number = -1;
};

}  // namespace

std::string ShortName(std::string_view member) {
  std::string name(member.substr(member.find_first_of("ABCDEFGHIJKLMNOPQRSTUVWXYZ")));
  name[0] = static_cast<char>(name[0] - 'A' + 'a');
  return name;
}

std::string ElementName(std::string_view member) {
  std::string name = ShortName(member);
  for (const std::string_view ending : {"Array", "s"}) {
    if (name.ends_with(ending)) return name.substr(0, name.size() - ending.size());
  }
  return name;
}

void FieldTexts::Add(std::string_view member, double number) {
  fields_.push_back({member, TextOf(number), number == 0, true});
}

void FieldTexts::Add(std::string_view member, const CString& text) {
  fields_.push_back({member, TextOf(text), text.IsEmpty(), true});
}

void FieldTexts::Add(std::string_view member, const CArray<double, double>& numbers) {
  std::string text;
  for (const double number : numbers) text += (text.empty() ? "" : " ") + TextOf(number);
  AddNamed(member, ShortName(member) + "=[" + text + "]", numbers.IsEmpty());
}

void FieldTexts::Add(std::string_view member, const CArray<CString, const CString&>& texts) {
  std::string joined;
  for (const CString& text : texts) joined.append(&text == texts.GetData() ? "" : "|").append(text.View());
  AddNamed(member, ShortName(member) + "=[" + joined + "]", texts.IsEmpty());
}

void FieldTexts::AddNamed(std::string_view member, std::string text, bool isEmpty) {
  fields_.push_back({member, std::move(text), isEmpty});
}

bool FieldTexts::Differs(const Field& field) const {
  const auto usual = std::find_if(fields_.begin(), fields_.end(),
                                  [&](const Field& other) { return other.member == field.member; });
  return usual == fields_.end() ? !field.isEmpty : usual->text != field.text;
}

std::string FieldTexts::RowText(Position first, Position shownEnd, bool isAlone) {
  std::string values = first->text;
  for (auto field = first + 1; field != shownEnd; ++field) values += " " + field->text;
  NumberedName name(first->member);
  if (name.number < 0) return name.stem + "=" + values;
  for (const std::string_view word : {"value", "Value", "arg"}) {
    if (name.stem.ends_with(word)) name.stem.resize(name.stem.size() - word.size());
  }
  if (name.stem.empty() && name.number <= 1) return values;
  if (name.stem.empty() || name.number > 1 || isAlone) name.stem += std::to_string(name.number);
  return name.stem + "=" + (isAlone ? values : "(" + values + ")");
}

std::string FieldTexts::ThatDifferFrom(const FieldTexts& usual) const {
  std::string shown;
  for (auto first = fields_.begin(), end = first; first != fields_.end(); first = end) {
    auto shownEnd = first;
    do {
      if (usual.Differs(*end)) shownEnd = end + 1;
      ++end;
    } while (end != fields_.end() && first->isSingle && end->isSingle &&
             NumberedName((end - 1)->member).IsFollowedBy(NumberedName(end->member)));
    if (shownEnd == first) continue;
    if (!shown.empty()) shown += ' ';
    shown += first->isSingle ? RowText(first, shownEnd, end - first == 1) : first->text;
  }
  return shown;
}

}  // namespace kestrin::test
