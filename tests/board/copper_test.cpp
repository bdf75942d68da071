#include <gtest/gtest.h>

#include "tests/board/board_of.h"

namespace kestrin {
namespace {

using test::Areas;
using test::BoardOf;
using test::Copper;

/// Widths in hundredths: 25 is 0.25 mm.
const BoardOptions kHundredths{.rotation = {}, .bottom = {}, .bottomTurn = {}, .widthStep = 0.01};

TEST(BoardCopper, MakesTracksOfPolylines) {
  struct Case {
    const char* lines;
    const char* copper;
  };
  const Case cases[] = {
      {"WIR 1 0 0 0 0\nSEG 0 0 1 25\nSEG 3 4 1 25\nSEG 3 5 1 25", "1w0.25(0 0)(3 4)(3 5) 1=6 "},
      {"ANT 1 0 0 0 0\nSEG 0 0 1 25\nSEG 1 0 1 25\nANT 1 0 0 1 0 0 1\nSEG 2 0 2 25\nSEG 3 0 2 25\nWIR 1 0 0 "
       "0 0\nSEG 4 0 "
       "1 25\nSEG 6 0 1 25",
       "1w0.25(4 0)(6 0) 1w0.25(0 0)(1 0) 2w0.25(2 0)(3 0) 1=3 2=1 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 25\nSEG 1 0 2 25\nSEG 2 0 1 25\nSEG 3 0 1 25",
       "1w0.25(0 0)(1 0) 2w0.25(1 0)(2 0) 1w0.25(2 0)(3 0) 1=2 2=1 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 25\nSEG 1 0 1 30\nSEG 2 0 1 30", "1w0.25(0 0)(1 0) 1w0.3(1 0)(2 0) 1=2 "},
      // A leg that begins at a via is on the layer of its end point.
      {"WIR 1 0 0 0 0\nSEG 0 0 4 25\nSEG 1 0 4 V1\nSEG 2 0 1 25",
       "4w0.25(0 0)(1 0) 1w0.25(1 0)(2 0) V1@(1 0) 1=1 4=1 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 V1\nSEG 1 0 2 V2\nSEG 2 0 3 V1",
       "2w?(0 0)(1 0) 3w?(1 0)(2 0) V1@(0 0) V2@(1 0) V1@(2 0) 2=1 3=1 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 25\nSEG 1 0 1 V1\nSEG 2 0 1 25", "1w0.25(0 0)(1 0)(2 0) V1@(1 0) 1=2 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 0 V1\nWIR 2 0 0 0 0\nSEG 0 0 0 V1", "V1@(0 0) V1@(0 0) "},
      // Layer 0 has no copper.
      {"WIR 1 0 0 0 0\nSEG 0 0 1 25\nSEG 1 0 0 25\nSEG 2 0 1 25\nSEG 3 0 1 25",
       "1w0.25(0 0)(1 0) 1w0.25(2 0)(3 0) 1=2 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 -3 25\nSEG 1 0 -3 25", "-3w0.25(0 0)(1 0) -3=1 "},
      // Widths.
      {"WIR 1 0 0 0 0\nSEG 0 0 1 0\nSEG 1 0 1 25", "1w0.25(0 0)(1 0) 1=1 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 25\nSEG 1 0 1 0", "1w0.25(0 0)(1 0) 1=1 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 0.25\nSEG 1 0 1 .25\nSEG 2 0 1 25\nSEG 3 0 1",
       "1w0.25(0 0)(1 0)(2 0)(3 0) 1=3 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 -0.5\nSEG 1 0 1 0.0", "1w?(0 0)(1 0) 1=1 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 1.2.3\nSEG 1 0 1 .\nSEG 2 0 1 1e3", "1w?(0 0)(1 0)(2 0) 1=2 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 12\nSEG 1 0 1 1E3", "1w0.12(0 0)(1 0) 1E3@(1 0) 1=1 "},
      {"WIR 1 0 0 0 0\nSEG 0 0 1 'V1'\nSEG 1 0 1 RULE\nSEG 2 0 1 NONE",
       "1w?(0 0)(1 0)(2 0) V1@(0 0) RULE@(1 0) 1=2 "},
      // No tracks.
      {"WIR 1 0 0 0 0\nSEG 0 0 1 25\nWIR 2 0 0 0 0", ""},
      {"INC 1 1 2 1 3 4 1\nSEG 1 2 1 25\nSEG 3 4 1 V1\nGUI 1 2 3 4 5 6\nCHG 1 2 3 4 5 6", "open(1 2)(3 4) "},
      {"WIR 1 0 0 0 0\nSEG 1 1 1 25\nSEG 1 1 1 25", "1w0.25(1 1)(1 1) 1=0 "},
      // Infinity minus infinity must not make a length NaN.
      {"WIR 1 0 0 0 0\nSEG 1e400 0 1 25\nSEG 1e400 1 1 25", "1w0.25(inf 0)(inf 1) 1=inf "},
      {"WIR 1 0 0 0 0\nSEG 1e308 0 1 25\nSEG -1e308 0 1 25", "1w0.25(1e+308 0)(-1e+308 0) 1=inf "},
  };
  for (const Case& c : cases) {
    const Board board =
        BoardOf({.tech = "$$define_rule_via(RULE)\n$$define_rule_via(V1)",
                 .neutral = {},
                 .geometry = "$$create_via(V1)\n$$create_via(V2)\n$$create_via(12)\n$$create_via(1E3)",
                 .traces = std::string("UNITS MM\n# NET A\n") + c.lines},
                kHundredths);
    EXPECT_EQ(Copper(board), c.copper) << c.lines;
  }
}

TEST(BoardCopper, RecordsTheSourceOfTracks) {
  const Board board = BoardOf(
      {.tech = {},
       .neutral = {},
       .geometry = {},
       .traces = "# NET A\nWIR 1 0 0 0 0\n# NET B\n# NET A\nWIR 1 0 0 0 0\nANT 1 0 0 0 0\nANT 1 0 0 0 0\n"
                 "SEG 0 0 1\nSEG 1 1 1\nANT 1 0 0 1 0 0 1\nSEG 0 0 1\nSEG 1 1 1\n"});
  ASSERT_EQ(board.tracks.size(), 2U);
  const Track& first = board.tracks[0];
  EXPECT_TRUE(first.kind == WireKind::kShortBranch && first.header == 2 && first.polyline == 1);
  const Track& second = board.tracks[1];
  EXPECT_TRUE(second.kind == WireKind::kLongBranch && second.header == 2 && second.polyline == 0);
  EXPECT_EQ(board.nets[0].headers, (std::vector<Index>{0, 2}));
}

TEST(BoardCopper, BelongsToNetsByName) {
  const Board board = BoardOf(
      {.tech = {},
       .neutral = "###Nets\nNET B\nNET 'A  1'\nNET C\nNET B\n",
       .geometry = {},
       .traces = "UNITS MM\n# NET D\nWIR 1 0 0 0 0\nSEG 0 0 1\nSEG 1 0 1\n# NET ' A  1 '\nWIR 1 0 0 0 0\n"
                 "SEG 0 0 1\nSEG 2 0 1\n# NET 'B'\nINC 1 1 1 1 2 2 1\n# NET D\nWIR 1 0 0 0 0\nSEG 0 0 "
                 "2\nSEG 3 0 2\nFIL E L SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\nARE E L SOLID 1 0 "
                 "3\nFIL F L SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\n"});
  EXPECT_EQ(Copper(board),
            "B: open(1 1)(2 2) A  1: 1w?(0 0)(2 0) 1=2 C: D: 1w?(0 0)(1 0) 2w?(0 0)(3 0) 1=1 2=3 E: ");
  EXPECT_EQ(board.nets[0].netRecords, (std::vector<Index>{0, 3}));
}

TEST(BoardCopper, FitsTheWidthStep) {
  struct Case {
    const char* unit;
    const char* widths;  // of consecutive points
    std::optional<double> step;
  };
  const Case cases[] = {
      {"MM", "25", 0.01},
      {"MM", "0.25 V1 0 0", std::nullopt},
      {"MM", "", std::nullopt},
      {"MM", "0.25 25", 0.01},
      {"MM", "75 75", 0.01},  // at both ends of the range: the greater step wins
      {"MM", "75", 0.01},
      {"MM", "74", 0.01},
      {"MM", "7", 0.1},
      {"MM", "1 1 25 25 25 900", 0.01},
      {"MM", "100 900 900 100", 0.001},  // the median is the mean of 100 and 900
      {"MM", "1 1000000", std::nullopt},
      {"MM", "7499", 0.0001},
      {"MM", "7501", std::nullopt},
      {"IN", "10", 0.001},
      {"MIL", "8", 1.0},
      {"MIL", "80", 0.1},
      {"UM", "200", 1.0},
      {"UM", "50", std::nullopt},
  };
  for (const Case& c : cases) {
    std::string lines = std::string("UNITS ") + c.unit + "\n# NET A\nWIR 1 0 0 0 0\n";
    std::istringstream widths(c.widths);
    for (std::string width; widths >> width;) lines += "SEG 0 0 1 " + width + "\n";
    const Board board = BoardOf({.tech = {}, .neutral = {}, .geometry = {}, .traces = lines});
    EXPECT_EQ(board.reading.widthStep, c.step) << c.unit << ' ' << c.widths;
    EXPECT_FALSE(board.reading.isFitted);
  }
  for (const double step :
       {0.0, -1.0, std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::infinity()}) {
    BoardOptions options;
    options.widthStep = step;
    const Board board = BoardOf({.tech = {},
                                 .neutral = {},
                                 .geometry = {},
                                 .traces = "UNITS MM\n# NET A\nWIR 1 0 0 0 0\nSEG 0 0 1 25\nSEG 1 0 1 25"},
                                options);
    EXPECT_EQ(board.reading.widthStep, 0.01) << step;
  }
}

TEST(BoardCopper, AssignsHolesToTheFirstAreaThatContainsThem) {
  const std::string big = "VER 0 0\nVER 10 0\nVER 10 10\nVER 0 10\nVER 0 0\n";
  const std::string small = "VER 0 0\nVER 4 0\nVER 4 4\nVER 0 4\n";
  const std::string hole = "VER 1 1\nVER 2 1\nVER 1 2\nVER 1 1\n";
  const std::string aBig = "(0 0)(10 0)(10 10)(0 10)";
  const std::string aSmall = "(0 0)(4 0)(4 4)(0 4)";
  const std::string aHole = "(1 1)(2 1)(1 2)";
  struct Case {
    std::string lines;
    std::string areas;
  };
  const std::string fill = "FIL 'A' 'SIGNAL_2' SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\n";
  const Case cases[] = {
      {fill + big, ""},
      {fill + "ARE A L SOLID 1 0 4\n" + big + "ISL 1\n" + hole, "A SIGNAL_2" + aBig + "-" + aHole + "\n"},
      {fill + "ARE A L SOLID 1 0 4\n" + small + "ARE A L SOLID 1 0 4\n" + big + "ISL 1\n" + hole +
           "ISL 2\nVER 5 5\nISL 3\n" + hole,
       "A SIGNAL_2" + aSmall + "-" + aHole + "-" + aHole + "\nA SIGNAL_2" + aBig + "-(5 5)\n"},
      {fill + "ARE A L SOLID 1 0 4\n" + big + "ISS 1\n" + hole + "ISL 1\nVER 20 20\nISL 2\n",
       "A SIGNAL_2" + aBig + "\n"},
      {fill + "ARE A L SOLID 1 0 4\n" + big + "ISS 1\n" + hole + "ARS A L SOLID 1 0 4\n" + small,
       "A SIGNAL_2" + aBig + "\nA SIGNAL_2" + aSmall + "-" + aHole + "\n"},
      {"ARE 'A' 'L' SOLID 1 0 4\n" + small, "A L" + aSmall + "\n"},
      {fill + "ARE A L SOLID 1 0 4\n", "A SIGNAL_2\n"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(Areas(BoardOf({.tech = {}, .neutral = {}, .geometry = {}, .traces = "UNITS MM\n" + c.lines})),
              c.areas)
        << c.lines;
  }
}

TEST(BoardCopper, FindsTheLayersThatViasJoin) {
  const Board board = BoardOf(
      {.tech = "$$define_physical_layer(1, T, SIGNAL_1)\n$$define_physical_layer(2, I, SIGNAL_2)\n"
               "$$define_physical_layer(3, B, SIGNAL_3)\n$$define_rule_via(\"R\", \"T\", \"I\")",
       .neutral = {},
       .geometry = "$$create_via(V)\n$$circle(SIGNAL_2, 0, 0, 1)\n$$circle(PAD_1, 0, 0, 1)\n$$path(SIGNAL_2, "
                   "1, [0, 0])\n$$create_via(W)\n$$circle(UNKNOWN, 0, 0, 1)\n$$create_via(V)\n"
                   "$$create_via(P)\n$$polygon(PAD_2)\n$$arc(SIGNAL_1, 0, 0)\n",
       .traces = {}});
  std::ostringstream text;
  for (const ViaPadstack& via : board.viaPadstacks) {
    text << via.name;
    for (const std::size_t layer : via.layers) text << ' ' << board.layers[layer].name;
    text << (via.sourceIndex ? ";" : "?");
  }
  EXPECT_EQ(text.str(), "V T I;W;P T B;R?");
}

}  // namespace
}  // namespace kestrin
