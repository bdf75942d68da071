#include <gtest/gtest.h>

#include <cstdio>

#include "tests/board/board_of.h"

namespace kestrin {
namespace {

using test::BoardOf;

TEST(BoardUnits, AreRecognizedByName) {
  struct Case {
    const char* word;
    std::optional<double> millimetres;
  };
  const Case cases[] = {{"MM", 1.0},
                        {"cm", 10.0},
                        {"In", 25.4},
                        {"INCH", 25.4},
                        {"mil", 0.0254},
                        {"MILS", 0.0254},
                        {"thou", 0.0254},
                        {"um", 0.001},
                        {"' MM'", 1.0},
                        {"", std::nullopt},
                        {"METRE", std::nullopt},
                        {"MMM", std::nullopt}};
  for (const Case& c : cases) EXPECT_EQ(MillimetresIn(c.word), c.millimetres) << c.word;
}

/// A file has its own unit or, without one, the unit of another file.
TEST(BoardUnits, AreThoseOfEachFile) {
  struct Case {
    const char* neutral;
    const char* geometry;
    const char* component;
    const char* traces;
    const char* board;
  };
  const Case cases[] = {
      {"MM", "@in", "@mil", "UM", "pin 0.0254 at 1 outline 25.4 track 0.001"},
      {"CM", "@mm", "", "MM", "pin 1 at 10 outline 1 track 1"},
      {"CM", "", "", "", "pin 10 at 10 outline 10 track 10"},
      {"", "@in", "", "", "pin 25.4 at 25.4 outline 25.4 track 25.4"},
      {"what", "@in", "@cm", "what", "pin 10 at 25.4 outline 25.4 track 25.4"},
      {"", "", "", "IN", "pin 1 at 1 outline 1 track 25.4"},
      {"", "", "", "", "pin 1 at 1 outline 1 track 1"},
      {"thou", "@furlong", "@furlong", "mils", "pin 0.0254 at 0.0254 outline 0.0254 track 0.0254"},
  };
  for (const Case& c : cases) {
    const Board board = BoardOf(
        {.tech = {},
         .neutral = std::string("B_UNITS ") + c.neutral + "\n###Component\nCOMP U p s G 1 0 1 0",
         .geometry =
             std::string("$$create_board(B)\n$$page(") + c.geometry +
             ")\n$$attribute(\"BOARD_ROUTING_OUTLINE\", [0, 0, 1, 0, 1, 1])\n$$create_component(G)\n$$page(" +
             c.component + ")\n$$attribute(COMPONENT_PIN_DEFINITION, 1, [0, 1])",
         .traces = std::string("UNITS ") + c.traces + "\n# NET A\nWIR 1 0 0 0 0\nSEG 0 0 1\nSEG 1 0 1"});
    std::ostringstream text;
    text << "pin " << board.pins[0].position.y << " at " << board.components[0].position.x << " outline "
         << board.outline[1].x << " track " << board.nets[0].lengths[0].length;
    EXPECT_EQ(text.str(), c.board) << c.neutral << ' ' << c.geometry << ' ' << c.component << ' ' << c.traces;
  }
}

/// The same point in mils and in millimetres is the same point on the board.
TEST(BoardUnits, ConvertToTheSamePoint) {
  for (int steps = 1; steps < 3000; ++steps) {
    char mils[100];
    char millimetres[100];
    std::snprintf(mils, sizeof mils, "B_UNITS MIL\n###Component\nCOMP U p s G %d -%d 1 0", steps, steps);
    std::snprintf(millimetres, sizeof millimetres, "UNITS MM\n# NET A\nINC 1 %.4f -%.4f 1 0 0 1",
                  steps * 0.0254, steps * 0.0254);
    const Board board = BoardOf({.tech = {}, .neutral = mils, .geometry = {}, .traces = millimetres});
    ASSERT_EQ(board.components[0].position, board.nets[0].open[0].from) << mils << ' ' << millimetres;
  }
}

std::string Layers(const Board& board) {
  std::ostringstream text;
  for (const Layer& layer : board.layers) {
    text << layer.number << ' ' << layer.name;
    for (const std::string& name : layer.names) text << ' ' << name;
    text << '\n';
  }
  return text.str();
}

TEST(BoardLayers, AreInTheOrderOfTheirNumbers) {
  struct Case {
    const char* tech;
    const char* geometry;
    const char* layers;
  };
  const Case cases[] = {
      {"$$define_physical_layer(3, B, SIGNAL_2)\n$$define_physical_layer(1, A, SIGNAL_1, PAD_1)", "",
       "1 A SIGNAL_1 PAD_1\n3 B SIGNAL_2\n"},
      {"$$define_physical_layer(1, A)", "$$create_board(B)\n$$attribute(\"BOARD_ROUTING_LAYERS\", [2])",
       "1 A\n"},
      {"$$define_physical_layer(1, 'A ')\n$$define_physical_layer(1, B)", "", "1 A\n1 B\n"},
      {"# nothing", "$$create_board(B)\n$$attribute(\"BOARD_ROUTING_LAYERS\", [2])",
       "1 SIGNAL_1\n2 SIGNAL_2\n"},
      {"", "$$create_board(B)\n$$attribute(\"BOARD_ROUTING_LAYERS\", [-1])", ""},
      {"", "", ""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Layers(BoardOf({.tech = c.tech, .neutral = {}, .geometry = c.geometry, .traces = {}})),
              c.layers)
        << c.tech;
  }
  const Board endless =
      BoardOf({.tech = {},
               .neutral = {},
               .geometry = "$$create_board(B)\n$$attribute(\"BOARD_ROUTING_LAYERS\", [2147483647])",
               .traces = {}});
  EXPECT_EQ(endless.layers.size(), 1000U);
}

TEST(BoardLayers, AreFoundByNumberAndByLogicalName) {
  const Board board = BoardOf({.tech = "$$define_physical_layer(1, TOP, SIGNAL_1, PLACE_2)\n"
                                       "$$define_physical_layer(5, INNER, SIGNAL_10, SIGNAL_1)\n"
                                       "$$define_physical_layer(7, BOTTOM, SIGNAL_9)",
                               .neutral = {},
                               .geometry = {},
                               .traces = {}});
  struct Case {
    const char* name;
    const char* layer;
    const char* fromBottom;
  };
  const Case cases[] = {
      {"SIGNAL_1", "TOP", "SIGNAL_10"},
      {"SIGNAL_10", "INNER", "SIGNAL_1"},
      {"SIGNAL_9", "BOTTOM", "SIGNAL_9"},
      {"PLACE_2", "TOP", "PLACE_1"},
      {"PLACE_1", "TOP", "PLACE_2"},
      {"PAD_1", "TOP", "PAD_2"},
      {"'THERMAL_2'", "BOTTOM", "THERMAL_1"},
      {"GLUE_MASK_1", "TOP", "GLUE_MASK_2"},
      {"TOP", "", "TOP"},
      {"pad_1", "", "pad_1"},
      {"POWER_1", "", "POWER_1"},
      {"PAD_3", "", "PAD_3"},
      {"", "", ""},
  };
  for (const Case& c : cases) {
    const Layer* layer = board.FindLayer(c.name);
    EXPECT_EQ(layer == nullptr ? "" : layer->name, c.layer) << c.name;
    EXPECT_EQ(board.LayerOn(Side::kBottom, c.name), c.fromBottom) << c.name;
    EXPECT_EQ(board.LayerOn(Side::kTop, c.name), ComparedName(c.name)) << c.name;
  }
  EXPECT_EQ(board.FindLayer(5)->name, "INNER");
  EXPECT_EQ(board.FindLayer(6), nullptr);
  EXPECT_EQ(Board().FindLayer(1), nullptr);
  EXPECT_EQ(Board().FindLayer("PAD_1"), nullptr);
}

TEST(BoardOutline, IsThePlacementOutlineElseTheRoutingOutline) {
  struct Case {
    const char* outlines;
    const char* outline;
  };
  const Case cases[] = {
      {"", ""},
      {"$$attribute(\"BOARD_ROUTING_OUTLINE\", [0, 0, 1, 0, 1, 1])", "(0 0)(1 0)(1 1)"},
      {"$$attribute(\"BOARD_ROUTING_OUTLINE\", [9, 9])\n$$attribute(\"BOARD_PLACEMENT_OUTLINE\", [0, 0, 1, "
       "0, 0, 0])",
       "(0 0)(1 0)"},
      {"$$attribute(\"BOARD_ROUTING_OUTLINE\", [9, 9])\n$$attribute(\"BOARD_PLACEMENT_OUTLINE\", [5])",
       "(9 9)"},
      {"$$attribute(\"BOARD_PLACEMENT_OUTLINE\", [1, 2, 3])", "(1 2)"},
      {"$$attribute(\"BOARD_PLACEMENT_OUTLINE\", [1, 2, 1, 2])", "(1 2)"},
  };
  for (const Case& c : cases) {
    std::ostringstream text;
    test::operator<<(text, BoardOf({.tech = {},
                                    .neutral = {},
                                    .geometry = std::string("$$create_board(B)\n") + c.outlines,
                                    .traces = {}})
                               .outline);
    EXPECT_EQ(text.str(), c.outline) << c.outlines;
  }
}

TEST(Board, OfNoModelsIsEmpty) {
  const Board board = ReadBoard({});
  EXPECT_TRUE(board.layers.empty() && board.components.empty() && board.nets.empty() &&
              board.outline.empty());
  EXPECT_FALSE(board.reading.isFitted || board.reading.isConfirmed || board.reading.widthStep);
}

}  // namespace
}  // namespace kestrin
