#include "kestrin/board/units.h"

#include "kestrin/board/board_words.h"
#include "kestrin/board/read_board.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/text/ignoring_case.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

struct UnitWord {
  std::string_view word;
  double millimetres;
};

constexpr UnitWord kUnitWords[] = {
    {"MM", 1.0},     {"CM", 10.0},     {"IN", 25.4},     {"INCH", 25.4},
    {"MIL", 0.0254}, {"MILS", 0.0254}, {"THOU", 0.0254}, {"UM", 0.001},
};

}  // namespace

void ForEachUnitWord(const FormatWordVisitor& visit) {
  for (const UnitWord& unit : kUnitWords) visit({.text = unit.word, .ignoresCase = true});
}

std::optional<double> MillimetresIn(std::string_view unit) {
  for (const UnitWord& known : kUnitWords) {
    if (EqualIgnoringCase(known.word, ComparedName(unit))) return known.millimetres;
  }
  return std::nullopt;
}

double Units::OfGeometry(std::string_view word) const { return MillimetresIn(word).value_or(geometry); }

Units ReadUnits(const BoardModels& models) {
  std::optional<double> neutral;
  std::optional<double> board;
  std::optional<double> traces;
  if (models.components != nullptr) neutral = MillimetresIn(models.components->m_sUnits.View());
  if (models.geometry != nullptr) board = MillimetresIn(models.geometry->m_pBoard->m_sUnits.View());
  if (models.traces != nullptr) traces = MillimetresIn(models.traces->m_sUnits.View());
  const double shared = neutral ? *neutral : board.value_or(1.0);
  return {.neutral = shared, .geometry = board.value_or(shared), .traces = traces.value_or(shared)};
}

}  // namespace kestrin
