#include <gtest/gtest.h>

#include "tests/board/board_of.h"

namespace kestrin {
namespace {

using test::BoardOf;
using test::Components;
using test::NetPins;

const std::string kPage = "$$page(0, 0, @mm)\n";

std::string Pin(const std::string& name, const std::string& at) {
  return "$$attribute(\"COMPONENT_PIN_DEFINITION\", \"" + name + "\", [" + at + "])\n";
}

TEST(BoardComponents, PlaceTheirPins) {
  struct Case {
    const char* component;
    BoardOptions options;
    const char* placed;
  };
  const BoardOptions clockwise{
      .rotation = Sense::kClockwise, .bottom = Sense::kClockwise, .bottomTurn = {}, .widthStep = {}};
  const BoardOptions turned{.rotation = {}, .bottom = {}, .bottomTurn = 180, .widthStep = {}};
  const Case cases[] = {
      {"U1 p s G 10 20 1 0", {}, "U1 top 0 (10 20): 1(12 21)\n"},
      {"U1 p s G 10 20 1 90", {}, "U1 top 90 (10 20): 1(9 22)\n"},
      {"U1 p s G 10 20 1 90", clockwise, "U1 top 90 (10 20): 1(11 18)\n"},
      {"U1 p s G 10 20 1 -270", {}, "U1 top -270 (10 20): 1(9 22)\n"},
      {"U1 p s G 10 20 1 450", {}, "U1 top 450 (10 20): 1(9 22)\n"},
      {"U1 p s G 10 20 1 90", turned, "U1 top 90 (10 20): 1(9 22)\n"},
      {"U1 p s G 0 0 1 45", {}, "U1 top 45 (0 0): 1(0.707107 2.12132)\n"},
      {"U1 p s G 0 0 1 2147483647", {}, "U1 top 2147483647 (0 0): 1(-2.00227 0.995456)\n"},
      {"U1 p s G 10 20 2 0", {}, "U1 bottom 0 (10 20): 1(8 21)\n"},
      {"U1 p s G 10 20 2 90", {}, "U1 bottom 90 (10 20): 1(9 18)\n"},
      {"U1 p s G 10 20 2 90", clockwise, "U1 bottom 90 (10 20): 1(11 22)\n"},
      {"U1 p s G 10 20 2 90", turned, "U1 bottom 90 (10 20): 1(11 22)\n"},
      {"U1 p s G 10 20 3 0", {}, "U1 top 0 (10 20): 1(12 21)\n"},
      {"'U 1' p s 'G' 10 20 1 0", {}, "U_1 top 0 (10 20): 1(12 21)\n"},
      {"U1 p s g 10 20 1 0", {}, "U1 top 0 (10 20):\n"},
      {"U1 p s G 1e400 0 1 90", {}, "U1 top 90 (inf 0): 1(inf 2)\n"},
  };
  for (const Case& c : cases) {
    const Board board = BoardOf({.tech = {},
                                 .neutral = std::string("B_UNITS MM\n###Component\nCOMP ") + c.component,
                                 .geometry = "$$create_component(\"G\")\n" + kPage + Pin("1", "2, 1"),
                                 .traces = {}},
                                c.options);
    EXPECT_EQ(Components(board), c.placed) << c.component;
  }
}

/// Other angles than right ones combine infinite coordinates, and infinity minus infinity is NaN.
TEST(BoardComponents, HaveNoNanCoordinates) {
  for (const char* values : {"1e400 -1e400 1 30", "0 0 2 45", "1e308 1e308 1 200", "-1e400 1e400 2 0"}) {
    const Board board = BoardOf({.tech = {},
                                 .neutral = std::string("B_UNITS IN\n###Component\nCOMP U p s G ") + values,
                                 .geometry = "$$create_component(\"G\")\n" + Pin("1", "1e400, -1e400") +
                                             Pin("2", "1e308, 1e308") + Pin("3", "-1e400, 1e308"),
                                 .traces = {}});
    EXPECT_EQ(Components(board).find("nan"), std::string::npos) << Components(board);
  }
}

TEST(BoardComponents, ChoosePadstacksAndKeepTheFirstOfEqualNames) {
  const std::string override = "$$attribute(COMPONENT_PADSTACK_OVERRIDE, ";
  const Board board =
      BoardOf({.tech = {},
               .neutral = "###Component\nCOMP A p s G 0 0 1 0\nCOMP B p s H 0 0 1 0\nCOMP C p s NONE 0 0 1 0",
               .geometry = "$$create_board(B)\n$$attribute(\"BOARD_DEFAULT_PADSTACK\", \"OF_BOARD\")\n"
                           "$$create_component(G)\n$$attribute(\"COMPONENT_DEFAULT_PADSTACK\", \"OF_G\")\n" +
                           override + "'A 1', P1)\n" + override + "A_1, P2)\n" + override + "X, P3)\n" +
                           Pin("A 1", "1, 1") + Pin("2", "2, 2") + "$$create_component(H)\n" +
                           Pin("1", "1, 1") + "$$create_component(G)\n" + Pin("9", "9, 9") +
                           "$$create_pin(P1)\n$$page(0, 0, @mil)\n$$create_pin(P1)\n",
               .traces = {}});
  EXPECT_EQ(Components(board),
            "A top 0 (0 0): A_1(1 1)P1 2(2 2)OF_G\nB top 0 (0 0): 1(1 1)OF_BOARD\nC top 0 (0 0):\n");
  EXPECT_EQ(board.padstacks[0].sourceIndex, 0U);
  EXPECT_EQ(board.padstacks[0].unit, 0.0254);
  EXPECT_EQ(board.padstacks[1].sourceIndex, std::nullopt);
  EXPECT_EQ(board.components[0].geometryIndex, 0U);
  EXPECT_EQ(board.components[1].geometryIndex, 1U);
  EXPECT_EQ(board.components[2].geometryIndex, std::nullopt);
}

TEST(BoardComponents, AreMatchedWithNetsByReferenceAndPin) {
  struct Case {
    const char* neutral;
    const char* nets;
  };
  const Case cases[] = {
      {"NET A\nN_PIN U1-1 a b c d\nN_PIN U1-7 a b c d\nN_PIN U9-1 a b c d", "A: U1-1 U1-7? U9-1?\n"},
      {"NET A\nN_PIN 'U 2-1' a b c d", "A: U_2-1\n"},
      {"NET A\nN_PIN X a b c d\nN_PIN -2 a b c d", "A: X? 2?\n"},
      {"NET 'A'\nN_PIN U1-1 a b c d\nNET B\nN_PIN U1-2 a b c d\nNET A\nN_PIN U_2-1 a b c d",
       "A: U1-1 U_2-1\nB: U1-2\n"},
      {"NET A\nN_PIN U1-1 a b c d\nN_PIN U1-1 a b c d\nN_PIN Z-1 a b c d\nNET B\nN_PIN U1-1 a b c d\nN_PIN "
       "Z-1 a b c d",
       "A: U1-1 Z-1?\nB:\n"},
      // The longest known reference wins: there are J, J-1 and J-1-2, but no J-3.
      {"NET A\nN_PIN J-1 a b c d\nN_PIN J-1-1 a b c d\nN_PIN J-1-2 a b c d\nN_PIN J-1-2-1 a b c d\nN_PIN "
       "J-3-1 a b c d",
       "A: J-1 J-1-1 J-1-2 J-1-2-1 J-3-1?\n"},
      {"NET A\nN_PIN J-1-2-2 a b c d\nN_PIN J-1-2-2-2 a b c d", "A: J-1-2-2 J-1-2-2-2?\n"},
      {"NET A\nN_PIN --1 a b c d", "A: --1\n"},
  };
  for (const Case& c : cases) {
    const Board board =
        BoardOf({.tech = {},
                 .neutral = std::string("###Nets\n") + c.neutral +
                            "\n###Component\nCOMP U1 p s G 0 0 1 0\nCOMP 'U 2' p s G 0 0 1 0\n"
                            "COMP J p s G 0 0 1 0\nCOMP J-1 p s G 0 0 1 0\nCOMP 'J-1-2' p s G 0 0 1 0\n"
                            "COMP - p s G 0 0 1 0\n",
                 .geometry = "$$create_component(G)\n" + Pin("1", "1, 1") + Pin("2", "2, 1"),
                 .traces = {}});
    EXPECT_EQ(NetPins(board), c.nets) << c.neutral;
  }
}

TEST(BoardComponents, WithTheSameReferenceStayAndTheFirstHasTheNets) {
  const Board board = BoardOf(
      {.tech = {},
       .neutral =
           "###Nets\nNET A\nN_PIN U-1 a b c d\n###Component\nCOMP U p s G 0 0 1 0\nCOMP U p s G 5 0 1 0\n",
       .geometry = "$$create_component(G)\n" + Pin("1", "1, 1") + Pin("2", "2, 2") + Pin("1", "3, 3") +
                   Pin("1", "4, 4"),
       .traces = {}});
  EXPECT_EQ(Components(board),
            "U top 0 (0 0): 1(1 1)=A 2(2 2) 1(3 3)=A 1(4 4)=A\nU top 0 (5 0): 1(6 1) 2(7 2) 1(8 3) 1(9 4)\n");
}

TEST(BoardComponents, MapTheirDrawingsOntoTheBoard) {
  const Board board = BoardOf({.tech = {},
                               .neutral = "B_UNITS MM\n###Component\nCOMP U p s G 10 20 2 90\n",
                               .geometry = "$$create_component(G)\n$$page(0, 0, @in)\n" + Pin("1", "1, 0"),
                               .traces = {}});
  const Transform& transform = board.components[0].transform;
  EXPECT_EQ(transform.Apply({1, 0}), board.pins[0].position);
  EXPECT_EQ(transform.Apply({1, 0}), (Point{10, -5.4}));
  EXPECT_EQ(transform.Apply({0, 2}), (Point{-40.8, 20}));
}

}  // namespace
}  // namespace kestrin
