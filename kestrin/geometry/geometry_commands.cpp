#include "kestrin/geometry/geometry_commands.h"

#include "kestrin/geometry/page_unit.h"

namespace kestrin {

LineOutcome BindBoard(ReaderState& state) {
  state.geometry.BindBoard();
  return LineOutcome::Imported();
}

LineOutcome CreateIgnored(ReaderState& state) {
  state.geometry.CreateIgnored();
  return LineOutcome::Ignored();
}

LineOutcome SetUnit(ReaderState& state, CString& unit) {
  unit = UnitOfPage(state.arguments);
  state.records.NoteLineOf(&unit);
  return LineOutcome::Imported();
}

}  // namespace kestrin
