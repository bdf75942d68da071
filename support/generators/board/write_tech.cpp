#include <ostream>

#include "support/generators/board/board_plan.h"

namespace kestrin::test {
namespace {

/// The logical layers of an outer side, "1" for the top and "2" for the bottom.
std::string OuterLayers(const char* side) {
  std::string names;
  for (const char* purpose : {"PAD_", "SILKSCREEN_", "SOLDER_MASK_", "PASTE_MASK_", "PLACE_", "DRAWING_"}) {
    names.append(", \"").append(purpose).append(side).append("\"");
  }
  return names;
}

}  // namespace

void WriteTech(std::ostream& out, const BoardPlan& /*plan*/) {
  out << "# physical layers: number, name, logical layers\n";
  for (int layer = 1; layer <= BoardPlan::kLayers; ++layer) {
    out << "$$define_physical_layer(" << layer << ", \"L" << layer << "\", \"SIGNAL_" << layer << "\"";
    if (layer == 1) out << OuterLayers("1");
    if (layer == BoardPlan::kLayers) out << OuterLayers("2");
    out << ");\n";
  }
  out << "# via rules: via, first layer, last layer\n";
  out << "$$define_rule_via(\"VIA_T06\", \"L1\", \"L" << BoardPlan::kLayers << "\");\n";
}

}  // namespace kestrin::test
