#include "kestrin/geometry/page_unit.h"

#include "kestrin/geometry/geometry_words.h"
#include "kestrin/text/ignoring_case.h"

namespace kestrin {

namespace {

struct Unit {
  std::string_view option;
  std::string_view word;
};

constexpr Unit kUnits[] = {{"@MM", "MM"}, {"@IN", "IN"}, {"@MIL", "MIL"}, {"@CM", "CM"}};

}  // namespace

void ForEachPageWord(const FormatWordVisitor& visit) {
  for (const Unit& unit : kUnits)
    visit({.text = unit.option, .place = WordPlace::kInside, .ignoresCase = true});
}

std::string_view UnitOfPage(std::string_view arguments) {
  for (const Unit& unit : kUnits) {
    if (ContainsIgnoringCase(arguments, unit.option)) return unit.word;
  }
  return {};
}

}  // namespace kestrin
