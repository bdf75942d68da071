#include "kestrin/geometry/geometry_commands.h"

#include "kestrin/text/ignoring_case.h"

namespace kestrin {
namespace {

const char* UnitIn(std::string_view arguments) {
  struct Unit {
    std::string_view option;
    const char* word;
  };
  static constexpr Unit kUnits[] = {{"@MM", "MM"}, {"@IN", "IN"}, {"@MIL", "MIL"}, {"@CM", "CM"}};
  for (const Unit& unit : kUnits) {
    if (ContainsIgnoringCase(arguments, unit.option)) return unit.word;
  }
  return "";
}

}  // namespace

LineOutcome BindBoard(ReaderState& state) {
  state.geometry.BindBoard();
  return LineOutcome::Imported();
}

LineOutcome CreateIgnored(ReaderState& state) {
  state.geometry.CreateIgnored();
  return LineOutcome::Ignored();
}

LineOutcome SetUnit(ReaderState& state, CString& unit) {
  unit = UnitIn(state.arguments);
  state.records.NoteLineOf(&unit);
  return LineOutcome::Imported();
}

}  // namespace kestrin
