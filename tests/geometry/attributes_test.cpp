#include <gtest/gtest.h>

#include <map>
#include <string>

#include "kestrin/geometry/geometry_reader.h"
#include "support/described.h"
#include "tests/support/feed.h"

namespace kestrin {
namespace {

using test::Described;

/// Create commands, by the word at the start of a case.
const std::map<std::string, std::string> kOpenings = {
    {"none", ""},
    {"locked", "$$lock_windows()\n"},
    {"board", "$$create_board()\n"},
    {"panel", "$$create_panel()\n"},
    {"component", "$$create_component()\n"},
    {"part", "$$create_generic_part()\n"},
    {"pin", "$$create_pin()\n"},
    {"pin after component", "$$create_component()\n$$create_pin()\n"},
    {"via", "$$create_via()\n"},
    {"drawing", "$$create_drawing()\n"},
    {"probe", "$$create_probe()\n"},
    {"stackup", "$$create_stackup(S)\n"},
};

/// The lines of attributes, separated by "|", in a geometry. "pending" means the pending points 7, "", 9.
struct Case {
  const char* opened;
  const char* attributes;
  const char* model;
};

std::string LinesOf(const Case& c) {
  std::string text = kOpenings.at(c.opened);
  std::istringstream attributes(c.attributes);
  for (std::string attribute; std::getline(attributes, attribute, '|');) {
    text += attribute == "pending" ? "$$initial([7, \"\", 9])\n" : "$$attribute(" + attribute + ");\n";
  }
  return text;
}

void ExpectModels(std::initializer_list<Case> cases) {
  for (const Case& c : cases) {
    CMGeom geom;
    GeometryReader reader(geom);
    test::Feed(reader, LinesOf(c));
    EXPECT_EQ(Described(geom), c.model) << LinesOf(c);
  }
}

TEST(GeometryAttributes, FillTheStackup) {
  ExpectModels({
      {"stackup", R"("Signal_Layer_Definition_X", "1", " SIGNAL_1" ,"", " ", 0.5)",
       "stackup{name=S SIGNAL_LAYER_DEFINITION_X{values=[1| SIGNAL_1| |0.5]}}"},
      {"stackup", R"(LAYER_DEFINITION, ["1", a[b, "TOP"], "X,Y")",
       "stackup{name=S LAYER_DEFINITION{values=[X|Y]}}"},
      {"stackup", "LAYER_DEFINITION|BOARD_DEFAULT_VIA, V|POWER_NET_NAMES, N",
       "stackup{name=S LAYER_DEFINITION{}}"},
  });
}

TEST(GeometryAttributes, FillTheBoundBoardInEveryKind) {
  ExpectModels({
      {"locked", "\"board_default_padstack\", \" P,1 \"|BOARD_DEFAULT_VIA, \"V\"",
       "board{defaultPadstack=[ P,1 ] defaultVia=V}"},
      {"locked", "BOARD_DEFAULT_VIA, V|BOARD_DEFAULT_VIA", "board{defaultVia=V}"},
      {"locked", "BOARD_DEFAULT_VIA, V|BOARD_DEFAULT_VIA, \"\"", ""},
      {"locked", "BOARD_PLACEMENT_CLEARANCE, 1, \"[2.5\", [3]", "board{placementClearance=2.5}"},
      {"locked", "BOARD_PLACEMENT_CLEARANCE, [2]|BOARD_PLACEMENT_CLEARANCE, 3",
       "board{placementClearance=2}"},
      {"locked", "BOARD_ROUTING_LAYERS, [4.9]", "board{routingLayers=4}"},
      {"locked", "BOARD_ROUTING_LAYERS, x], a[4|BOARD_ROUTING_LAYERS, [[8", "board{routingLayers=8}"},
      {"locked", "BOARD_PLACEMENT_OUTLINE, 5, [1, 2, , 4], [6]|BOARD_PLACEMENT_OUTLINE, [8, 9]",
       "board{placementOutline=[1 2 0 4 8 9]}"},
      {"locked", "BOARD_PLACEMENT_OUTLINE, [1, \"2,3\", [, 4, ]", "board{placementOutline=[1 2 0 4 0]}"},
      {"locked", "pending|BOARD_PLACEMENT_OUTLINE|BOARD_PLACEMENT_OUTLINE",
       "board{placementOutline=[7 0 9]}"},
      {"locked", "pending|BOARD_PLACEMENT_OUTLINE, [1]|BOARD_PLACEMENT_OUTLINE",
       "board{placementOutline=[1]}"},
      {"locked", "BOARD_ROUTING_OUTLINE, [1, 2]|BOARD_ROUTING_OUTLINE, [3, 4]",
       "board{routingOutline=[3 4]}"},
      {"locked", "BOARD_ROUTING_OUTLINE, [1, 2]|BOARD_ROUTING_OUTLINE", ""},
      {"locked", "pending|BOARD_ROUTING_OUTLINE, 5]", "board{routingOutline=[7 0 9]}"},
      // without a bound board, nothing happens
      {"pin", "pending|BOARD_PLACEMENT_OUTLINE, [1]|BOARD_ROUTING_OUTLINE|TERMINAL_DRILL_SIZE",
       "pin{drillSize=7}"},
  });
}

TEST(GeometryAttributes, FillTheOpenBoard) {
  ExpectModels({
      {"board", R"("BOARD_PLACEMENT_KEEPOUT", "K", [0, 0, 1, 0])",
       "board{placementKeepout{name=K coords=[0 0 1 0]}}"},
      {"board", "BOARD_PLACEMENT_KEEPOUT, [K, 1, [2, 3], 4, [5",
       "board{placementKeepout{name=[K coords=[2 3]}}"},
      {"board", "pending|BOARD_PLACEMENT_KEEPOUT, \"\"", "board{placementKeepout{coords=[7 0 9]}}"},
      {"board", "pending|BOARD_PLACEMENT_KEEPOUT, [1, 2]", "board{placementKeepout{name=[1 coords=[7 0 9]}}"},
      {"locked", "pending|BOARD_PLACEMENT_KEEPOUT, K, [1]|BOARD_PLACEMENT_OUTLINE", ""},
      {"none", "pending|BOARD_PLACEMENT_REGION", ""},
      {"board", "BOARD_PLACEMENT_REGION, 5], [1, 2], [3]", "board{placementRegion{coords=[1 2]}}"},
      {"board", "BOARD_PLACEMENT_REGION, N, [1, 2]|pending|BOARD_PLACEMENT_REGION",
       "board{placementRegion{coords=[1 2]} placementRegion{coords=[7 0 9]}}"},
      {"board", R"(POWER_NET_NAMES, "'VCC'", "", G'N'D, "A,B", ''|pending|POWER_NET_NAMES)",
       "board{powerNetNames=[VCC||GND|A|B|]}"},
      {"locked", "POWER_NET_NAMES, GND", ""},
  });
}

TEST(GeometryAttributes, FillTheLastComponentInEveryKind) {
  ExpectModels({
      {"component", R"(COMPONENT_DEFAULT_PADSTACK, "P"|COMPONENT_LAYOUT_TYPE, "a,b")",
       "component{defaultPadstack=P layoutType=a,b}"},
      {"component", "COMPONENT_LAYOUT_SURFACE, top", "component{layoutSurface=top}"},
      {"component", "COMPONENT_LAYOUT_SURFACE", "component{}"},
      {"component", "COMPONENT_LAYOUT_SURFACE, \"\"", "component{layoutSurface=[]}"},
      {"component", R"(COMPONENT_OUTLINE_OVERHANG, "oh yes")", "component{outlineOverhang=1}"},
      {"component", "COMPONENT_OUTLINE_OVERHANG, Yes|COMPONENT_OUTLINE_OVERHANG, no", "component{}"},
      {"pin after component",
       "COMPONENT_LAYOUT_TYPE, smd|COMPONENT_DEFAULT_PADSTACK, D|COMPONENT_LAYOUT_SURFACE, top|"
       "COMPONENT_OUTLINE_OVERHANG, yes",
       "component{defaultPadstack=D layoutSurface=top layoutType=smd outlineOverhang=1} pin{}"},
  });
}

TEST(GeometryAttributes, FillTheOpenComponent) {
  ExpectModels({
      {"component", R"("component_height", [5.5])", "component{height=5.5}"},
      {"component", "COMPONENT_HEIGHT, 5.5", "component{}"},
      {"component", R"(COMPONENT_TYPE, "A,B")", "component{componentType=A}"},
      {"component", "COMPONENT_TYPE, A|COMPONENT_TYPE", "component{componentType=A}"},
      {"component", R"(COMPONENT_PADSTACK_OVERRIDE, "1", P, x|COMPONENT_PADSTACK_OVERRIDE, "", Q)",
       "component{padstackOverride{1 P} padstackOverride{[] Q}}"},
      {"component", "COMPONENT_PADSTACK_OVERRIDE", "component{padstackOverride{}}"},
      {"component", R"(COMPONENT_PIN_DEFINITION, "1", x, [1.5, -2], [3, 4])",
       "component{pinDef{name=1 x=1.5 y=-2}}"},
      {"component", "COMPONENT_PIN_DEFINITION, [1, 2], 3, [4], 5]", "component{pinDef{name=[1 x=4 y=2}}"},
      {"component", "pending|COMPONENT_PIN_DEFINITION, 1, 2]|COMPONENT_PIN_DEFINITION",
       "component{pinDef{name=1 x=7} pinDef{}}"},
      {"component", "pending|COMPONENT_PIN_DEFINITION, 1, [2|COMPONENT_PIN_DEFINITION",
       "component{pinDef{name=1 x=2} pinDef{}}"},
  });
}

TEST(GeometryAttributes, FillPartsAndBoards) {
  ExpectModels({
      // outlines
      {"component", "COMPONENT_BODY_OUTLINE, [1, 2], [3]|COMPONENT_BODY_OUTLINE, [4, , \"5,6\"]",
       "component{bodyOutline=[1 2 4 0 5]}"},
      {"part", "pending|COMPONENT_BODY_OUTLINE", "genericPart{bodyOutline=[7 0 9]}"},
      {"component", R"(COMPONENT_PLACEMENT_OUTLINE, "O", 1], 2, [3, "", 4], 5, [6])",
       "component{placementOutline{name=O coords=[1 3 4 6]}}"},
      {"component", "pending|COMPONENT_PLACEMENT_OUTLINE, \"\", \"\"|COMPONENT_PLACEMENT_OUTLINE, P",
       "component{placementOutline{coords=[7 0 9]} placementOutline{name=P}}"},
      {"part", "COMPONENT_PLACEMENT_OUTLINE, O, [1, 2]|COMPONENT_PLACEMENT_OUTLINE, P, [3]",
       "genericPart{placementOutline{coords=[1 2 3]}}"},
      // drills
      {"panel", R"("DRILL_DEFINITION", 0.8, [1.0, 2.0])", "panel{drill{size=0.8 x=1 y=2}}"},
      {"board", R"(DRILL_DEFINITION_UNPLATED, "0.8", 1], [2, 3], 4], [5])",
       "board{unplatedDrill{size=0.8 x=2 y=1}}"},
      {"component", "pending|DRILL_DEFINITION, [1, 3]|DRILL_DEFINITION_UNPLATED, 2",
       "component{drill{x=7} unplatedDrill{size=2}}"},
      {"part", "DRILL_DEFINITION, 1, [2|DRILL_DEFINITION", "genericPart{drill{size=1 x=2} drill{}}"},
      // keep-outs
      {"board", R"(ROUTING_KEEPOUT, "K", [0,0, 1,0], 5, [2], "3]", "")",
       "board{routingKeepout{name=K coords=[0 0 1 0 2 3]}}"},
      {"component", R"(ROUTING_KEEPOUT, K, ], [1, "", ])",
       "component{routingKeepout{name=K coords=[0 1 0 0]}}"},
      {"part", "pending|ROUTING_KEEPOUT, \"\"|ROUTING_KEEPOUT, [N, 2]",
       "genericPart{routingKeepout{coords=[7 0 9]} routingKeepout{name=[N coords=[2]}}"},
      {"component", "TRACE_KEEPOUT, T, [1, 2]|VIA_KEEPOUT, V, [3, 4]",
       "component{traceKeepout{name=T coords=[1 2]} viaKeepout{name=V coords=[3 4]}}"},
      {"part", "VIA_KEEPOUT, V|pending|TRACE_KEEPOUT, T",
       "genericPart{traceKeepout{name=T coords=[7 0 9]} viaKeepout{name=V}}"},
  });
}

TEST(GeometryAttributes, FillPinsAndVias) {
  ExpectModels({
      {"pin", "TERMINAL_SURFACE_DEFINITION, x", "pin{terminalType=2}"},
      {"pin", "TERMINAL_BLIND_DEFINITION", "pin{terminalType=3}"},
      {"pin", "TERMINAL_BLIND_DEFINITION|TERMINAL_THRUHOLE_DEFINITION|TERMINAL_THRUVIA_DEFINITION", "pin{}"},
      {"via", "TERMINAL_THRUVIA_DEFINITION|TERMINAL_SURFACE_DEFINITION", "via{viaType=1}"},
      {"via", "TERMINAL_BURIED_VIA_DEFINITION", "via{viaType=2}"},
      {"via", "TERMINAL_SEGMENT_VIA_DEFINITION", "via{viaType=3}"},
      {"via", "TERMINAL_2_LAYER_VIA_DEFINITION", "via{viaType=4}"},
      {"pin", "TERMINAL_DRILL_SIZE, 5, [0.8]", "pin{drillSize=0.8}"},
      {"via", "pending|TERMINAL_DRILL_SIZE, [1]|TERMINAL_DRILL_SIZE", "via{drillSize=7}"},
      {"pin", "pending|TERMINAL_DRILL_SIZE|TERMINAL_DRILL_SIZE, [1]", "pin{drillSize=1}"},
  });
}

/// The effect of an attribute in every kind of geometry: an upper-case letter for a kind that imports it, "."
/// for one where the line is skipped. Then "!" if it leaves the pending points alone in any kind.
TEST(GeometryAttributes, AreKeptAndConsumePendingPointsByKind) {
  struct Row {
    const char* attribute;
    const char* kinds;
  };
  // board, panel, component, part, pin, via, drawing, probe, stackup
  const Row rows[] = {
      {"BOARD_PLACEMENT_KEEPOUT, K, [1, 2]", "B........"},
      {"BOARD_PLACEMENT_REGION, [1, 2]", "B........"},
      {"COMPONENT_BODY_OUTLINE, [1, 2]", "..CG....."},
      {"COMPONENT_PLACEMENT_OUTLINE, O, [1]", "..CG....."},
      {"DRILL_DEFINITION, 1, [1, 2]", "BPCG....."},
      {"DRILL_DEFINITION_UNPLATED, 1, [1]", "BPCG....."},
      {"ROUTING_KEEPOUT, K, [1, 2]", "B.CG....."},
      {"TRACE_KEEPOUT, K, [1, 2]", "..CG....."},
      {"VIA_KEEPOUT, K, [1, 2]", "..CG....."},
      {"TERMINAL_DRILL_SIZE, [1]", "....TV..."},
      {"COMPONENT_PIN_DEFINITION, 1, [1, 2]", "..C......!"},
      {"COMPONENT_HEIGHT, [1]", "..C......!"},
      {"COMPONENT_TYPE, T", "..C......!"},
      {"COMPONENT_PADSTACK_OVERRIDE, 1", "..C......!"},
      {"POWER_NET_NAMES, N", "B........!"},
      {"TERMINAL_BLIND_DEFINITION", "....T....!"},
      {"TERMINAL_BURIED_VIA_DEFINITION", ".....V...!"},
      {"COMPONENT_LAYOUT_TYPE, T", "..C......!"},
      {"BOARD_DEFAULT_VIA, V", "B........!"},
      {"LAYER_DEFINITION, 1", "........S!"},
  };
  const char* kinds[] = {"board", "panel", "component", "part", "pin", "via", "drawing", "probe", "stackup"};
  for (const Row& row : rows) {
    std::string kept;
    bool leavesPending = false;
    for (std::size_t i = 0; i < std::size(kinds); ++i) {
      CMGeom geom;
      GeometryReader reader(geom);
      test::Feed(reader, kOpenings.at(kinds[i]) + "$$initial([7])");
      const std::string before = Described(geom);
      const auto outcome = reader.ReadLine("$$attribute(" + std::string(row.attribute) + ")");
      const bool changed = Described(geom) != before;
      EXPECT_EQ(outcome == LineOutcome::Imported(), changed) << row.attribute << " in " << kinds[i];
      kept += changed ? "BPCGTVDQS"[i] : '.';
      test::Feed(reader, "$$create_drawing()\n$$path()");
      const CMGeomDrawing* last = geom.m_pDrawings->GetAt(geom.m_pDrawings->GetUpperBound());
      const bool left = Described(*last) == "LINE{coords=[7]}";
      if (std::string(kinds[i]) == "stackup") {
        EXPECT_TRUE(left) << row.attribute;
      } else {
        leavesPending = leavesPending || left;
      }
    }
    EXPECT_EQ(kept + (leavesPending ? "!" : ""), row.kinds) << row.attribute;
  }
}

TEST(GeometryAttributes, ReportTheOutcomeOfALine) {
  struct Line {
    const char* line;
    const char* outcome;
  };
  const Line lines[] = {
      {"$$create_via(V)", "imported"},
      {"$$attribute()", "$$attribute needs a name"},
      {"$$attribute( \"\" , x)", "$$attribute needs a name"},
      {"$$attribute(\" \", x)", "unknown attribute"},
      {"$$attribute(NOVELTY)", "unknown attribute"},
      {"$$attribute(TESTPOINT_KEEPOUT, K)", "ignored"},
      {"$$attribute(SIGNAL_LAYER_DEFINITION)", "LAYER_DEFINITION needs a stack-up before it"},
      {"$$attribute(BOARD_DEFAULT_VIA, V)",
       "BOARD_DEFAULT_VIA needs $$lock_windows or $$create_board before it"},
      {"$$attribute(COMPONENT_LAYOUT_TYPE, T)", "COMPONENT_LAYOUT_TYPE needs a component before it"},
      {"$$attribute(TRACE_KEEPOUT, T)", "TRACE_KEEPOUT needs a component or generic part before it"},
      {"$$attribute(drill_definition, 1)",
       "DRILL_DEFINITION needs a panel, board, component or generic part before it"},
      {"$$attribute(TERMINAL_DRILL_SIZE, 1)", "TERMINAL_DRILL_SIZE needs a number in square brackets"},
      {"$$create_component(C)", "imported"},
      {"$$attribute(COMPONENT_TYPE)", "COMPONENT_TYPE needs at least 2 values, 1 found"},
      {"$$attribute(COMPONENT_HEIGHT, 1)", "COMPONENT_HEIGHT needs a number in square brackets"},
      {"$$create_stackup(S)", "imported"},
      {"$$attribute(TESTPOINT_KEEPOUT, K)", "ignored"},
      {"$$attribute(COMPONENT_TYPE, A)", "an attribute of a stack-up needs LAYER_DEFINITION in its name"},
      {"$$attribute(NOVELTY)", "unknown attribute"},
  };
  CMGeom geom;
  GeometryReader reader(geom);
  for (const Line& line : lines) {
    EXPECT_EQ(test::DescriptionOf(reader.ReadLine(line.line)), line.outcome) << line.line;
  }
}

}  // namespace
}  // namespace kestrin
