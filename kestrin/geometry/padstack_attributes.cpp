#include "kestrin/geometry/attribute_handlers.h"
#include "kestrin/geometry/bracketed_number.h"

namespace kestrin::attribute {

LineOutcome DrillSize(ReaderState& state) {
  LineOutcome outcome = LineOutcome::Imported();
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_dDrillSize; }) {
      outcome = AssignBracketed(state.values, record.m_dDrillSize);
      if (state.pending.IsEmpty()) return;
      state.pending.CopyTo(1, record.m_dDrillSize);  // overrules the line's own
      outcome = LineOutcome::Imported();
    }
  });
  state.pending.Clear();
  return outcome;
}

LineOutcome SetTerminalType(ReaderState& state, int type) {
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_nTerminalType; }) record.m_nTerminalType = type;
  });
  return LineOutcome::Imported();
}

LineOutcome SetViaType(ReaderState& state, int type) {
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_nViaType; }) record.m_nViaType = type;
  });
  return LineOutcome::Imported();
}

}  // namespace kestrin::attribute
