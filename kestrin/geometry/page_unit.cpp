#include "kestrin/geometry/page_unit.h"

#include "kestrin/text/ignoring_case.h"

namespace kestrin {

std::string_view UnitOfPage(std::string_view arguments) {
  struct Unit {
    std::string_view option;
    std::string_view word;
  };
  static constexpr Unit kUnits[] = {{"@MM", "MM"}, {"@IN", "IN"}, {"@MIL", "MIL"}, {"@CM", "CM"}};
  for (const Unit& unit : kUnits) {
    if (ContainsIgnoringCase(arguments, unit.option)) return unit.word;
  }
  return {};
}

}  // namespace kestrin
