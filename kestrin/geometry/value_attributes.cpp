// Attributes with texts and numbers.

#include <utility>

#include "kestrin/geometry/attribute_handlers.h"
#include "kestrin/text/contains.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/text/record_table.h"

namespace kestrin::attribute {
namespace {

LineOutcome WithoutBrackets(const ReaderState& state) {
  return LineOutcome::Skipped(SkipCode::kMissingValue, *state.rule);
}

}  // namespace

LineOutcome SetText(ReaderState& state, CString& text) {
  text = state.values[2];
  state.records.NoteLineOf(&text);
  return LineOutcome::Imported();
}

LineOutcome SetIfYes(ReaderState& state, int& flag) {
  flag = ContainsIgnoringCase(state.values[2], kYes) ? 1 : 0;
  return LineOutcome::Imported();
}

LineOutcome AddNames(ReaderState& state, CStringArray& names) {
  for (std::size_t number = 2; state.values.HasAtLeast(number); ++number) {
    names[names.Add(state.values[number])].Remove('\'');
  }
  return LineOutcome::Imported();
}

LineOutcome AddOverride(ReaderState& state, RecordArray<CMGeomOverride>& overrides) {
  auto record = state.records.Make<CMGeomOverride>();
  record->m_sArg1 = state.values[2];
  record->m_sArg2 = state.values[3];
  Append(overrides, std::move(record));
  return LineOutcome::Imported();
}

LineOutcome AddLayerDefinition(ReaderState& state, RecordArray<CMGeomLayerDEF>& layers) {
  auto layer = state.records.Make<CMGeomLayerDEF>();
  layer->m_sDefinition = state.values[1];
  layer->m_sDefinition.MakeUpper();
  state.values.Cut(state.arguments, Commas::kEvery);  // a comma in the name separates too
  for (std::size_t number = 2; state.values.HasAtLeast(number); ++number) {
    const std::string_view value = state.values[number];
    if (!value.empty() && !Contains(value, '[') && !Contains(value, ']')) layer->m_pValues->Add(value);
  }
  Append(layers, std::move(layer));
  return LineOutcome::Imported();
}

LineOutcome SetNumber(ReaderState& state, double& number) {
  const auto text = FirstBracketed(state.values);
  if (!text) return WithoutBrackets(state);
  number = ToDouble(*text);
  return LineOutcome::Imported();
}

LineOutcome SetWholeNumber(ReaderState& state, int& number) {
  const auto text = FirstBracketed(state.values);
  if (!text) return WithoutBrackets(state);
  number = ToInt(*text);
  return LineOutcome::Imported();
}

LineOutcome SetDrillSize(ReaderState& state, double& size) {
  const LineOutcome outcome = SetNumber(state, size);
  if (state.pending.IsEmpty()) return outcome;
  state.pending.CopyTo(1, size);
  state.pending.Clear();
  return LineOutcome::Imported();
}

}  // namespace kestrin::attribute
