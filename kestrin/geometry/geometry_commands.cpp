#include "kestrin/geometry/geometry_commands.h"

#include "kestrin/text/ignoring_case.h"

namespace kestrin {
namespace {

constexpr RecordRule kPageRule{"$$page", "an open geometry for its unit"};

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

bool IsUnkept(GeometryKind kind) {
  return kind == GeometryKind::kProbe || kind == GeometryKind::kTestFixture;
}

}  // namespace

LineOutcome LockWindows(ReaderState& state, std::string_view /*arguments*/) {
  state.geometry.BindBoard();
  return LineOutcome::Imported();
}

LineOutcome Page(ReaderState& state, std::string_view arguments) {
  const char* unit = UnitIn(arguments);
  if (state.geometry.VisitOpen([&](auto& record) { record.m_sUnits = unit; })) return LineOutcome::Imported();
  return IsUnkept(state.geometry.Kind()) ? LineOutcome::Ignored()
                                         : LineOutcome::Skipped(SkipCode::kNoOwner, kPageRule);
}

}  // namespace kestrin
