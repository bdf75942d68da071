#include <ostream>

#include "support/generators/board/board_plan.h"

namespace kestrin::test {
namespace {

/// The corners of a rectangle, as a list in square brackets.
std::string Rectangle(Point low, Point high) {
  return "[" + Decimals(low, ", ") + ", " + Decimals({high.x, low.y}, ", ") + ", " + Decimals(high, ", ") +
         ", " + Decimals({low.x, high.y}, ", ") + "]";
}

std::string Centred(Point half) { return Rectangle({-half.x, -half.y}, half); }

void Create(std::ostream& out, std::string_view kind, std::string_view name) {
  out << "$$create_" << kind << "(\"" << name << "\");\n$$page(0.0, 0.0, @mm);\n";
}

void WriteBoard(std::ostream& out, const BoardPlan& plan) {
  out << "$$lock_windows(@all);\n";
  Create(out, "board", "GENERATED");
  out << "$$attribute(\"BOARD_ROUTING_LAYERS\", [" << BoardPlan::kLayers << "]);\n";
  out << "$$attribute(\"BOARD_DEFAULT_PADSTACK\", \"THRU_16D10\");\n";
  out << "$$attribute(\"BOARD_DEFAULT_VIA\", \"VIA_T06\");\n";
  out << "$$attribute(\"BOARD_PLACEMENT_OUTLINE\", " << Rectangle({}, plan.size) << ");\n";
}

void WritePadstacks(std::ostream& out) {
  struct SurfacePad {
    const char* name;
    Point half;
  };
  for (const SurfacePad& pad : {SurfacePad{"SMD_08X09", {4'000, 4'500}},
                                {"SMD_15X06", {7'500, 3'000}},
                                {"SMD_15X03", {7'500, 1'500}}}) {
    Create(out, "pin", pad.name);
    out << "$$attribute(\"TERMINAL_SURFACE_DEFINITION\");\n$$polygon(\"PAD_1\", " << Centred(pad.half)
        << ");\n";
  }
  Create(out, "pin", "THRU_16D10");
  out << "$$attribute(\"TERMINAL_THRUHOLE_DEFINITION\");\n$$attribute(\"TERMINAL_DRILL_SIZE\", [1.0]);\n";
  for (int side = 1; side <= 2; ++side) out << "$$circle(\"PAD_" << side << "\", 0.0, 0.0, 1.6, 0.0);\n";
  Create(out, "via", "VIA_T06");
  out << "$$attribute(\"TERMINAL_THRUVIA_DEFINITION\");\n$$attribute(\"TERMINAL_DRILL_SIZE\", [0.3]);\n";
  for (int layer = 1; layer <= BoardPlan::kLayers; ++layer)
    out << "$$circle(\"SIGNAL_" << layer << "\", 0.0, 0.0, 0.6, 0.0);\n";
}

void WritePackage(std::ostream& out, const Package& package) {
  Create(out, "component", package.name);
  out << "$$attribute(\"COMPONENT_HEIGHT\", [1.0]);\n$$attribute(\"COMPONENT_LAYOUT_TYPE\", \""
      << (package.isThrough ? "through" : "surface") << "\");\n";
  out << "$$attribute(\"COMPONENT_DEFAULT_PADSTACK\", \"" << package.padstack << "\");\n";
  out << "$$attribute(\"COMPONENT_PLACEMENT_OUTLINE\", \"PLACE_1\", " << Centred(package.halfBody) << ");\n";
  for (int pin = 0; pin < package.pins; ++pin) {
    out << "$$attribute(\"COMPONENT_PIN_DEFINITION\", \"" << pin + 1 << "\", ["
        << Decimals(PinOf(package, pin), ", ") << "]);\n";
  }
  const Point half{package.rows / 4, package.halfBody.y - 5'000};
  out << "$$polygon(\"SILKSCREEN_1\", " << Centred(half) << ");\n";
}

}  // namespace

void WriteGeometry(std::ostream& out, const BoardPlan& plan) {
  WriteBoard(out, plan);
  WritePadstacks(out);
  for (const Package& package : Packages()) WritePackage(out, package);
}

}  // namespace kestrin::test
