#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <optional>
#include <random>
#include <sstream>
#include <vector>

#include "tests/board/board_of.h"

namespace kestrin {
namespace {

using test::BoardOf;
using test::Models;
using test::Texts;

std::string DescriptionOf(const Reading& reading) {
  std::string text = reading.rotation == Sense::kClockwise ? "cw" : "ccw";
  text += reading.bottom == Sense::kClockwise ? " cw " : " ccw ";
  text += std::to_string(reading.bottomTurn);
  if (reading.isFitted) text += " fitted";
  if (reading.isConfirmed) text += " confirmed";
  return text + ' ' + std::to_string(reading.pinsTouching) + '/' + std::to_string(reading.pinsCounted);
}

struct Convention {
  Sense rotation;
  Sense bottom;
  int bottomTurn;
};

constexpr Sense kCcw = Sense::kCounterClockwise;
constexpr Sense kCw = Sense::kClockwise;
constexpr Convention kConventions[] = {{kCcw, kCcw, 0}, {kCcw, kCcw, 180}, {kCcw, kCw, 0}, {kCcw, kCw, 180},
                                       {kCw, kCcw, 0},  {kCw, kCcw, 180},  {kCw, kCw, 0},  {kCw, kCw, 180}};

/// A net with one pin.
std::string NetOfPin(const std::string& net, const std::string& pin) {
  return "NET " + net + "\nN_PIN " + pin + " a b c d\n";
}

struct Placed {
  int side;
  int degrees;
};

/// A board whose components were placed by a convention. Each pin has its own track.
Texts PlacedBy(const Convention& convention, const std::vector<Placed>& components) {
  Texts texts{
      .tech = {},
      .neutral = "B_UNITS MM\n###Component\n",
      .geometry =
          "$$create_component(G)\n$$page(0, 0, @mil)\n$$attribute(COMPONENT_PIN_DEFINITION, 1, [300, 20])\n"
          "$$attribute(COMPONENT_PIN_DEFINITION, 2, [-100, 50])\n",
      .traces = "UNITS CM\n"};
  std::string nets = "###Nets\n";
  int number = 0;
  for (const Placed& placed : components) {
    const double originX = 20.0 * ++number;
    texts.neutral += "COMP U" + std::to_string(number) + " p s G " + std::to_string(originX) + " 7 " +
                     std::to_string(placed.side) + " " + std::to_string(placed.degrees) + "\n";
    const bool isBottom = placed.side == 2;
    const double sign = (isBottom ? convention.bottom : convention.rotation) == kCcw ? 1.0 : -1.0;
    const double angle =
        (sign * placed.degrees + (isBottom ? convention.bottomTurn : 0)) * std::numbers::pi / 180.0;
    int pin = 0;
    for (const Point at : {Point{7.62, 0.508}, Point{-2.54, 1.27}}) {
      const std::string name = "U" + std::to_string(number) + "-" + std::to_string(++pin);
      const double x = isBottom ? -at.x : at.x;
      const double boardX = (originX + x * std::cos(angle) - at.y * std::sin(angle)) / 10.0;
      const double boardY = (7.0 + x * std::sin(angle) + at.y * std::cos(angle)) / 10.0;
      nets += NetOfPin("N" + name, name);
      char line[200];
      std::snprintf(line, sizeof line, "# NET N%s\nWIR 1 0 0 0 0\nSEG %.9f %.9f 1\nSEG %.9f 9 1\n",
                    name.c_str(), boardX, boardY, boardX);
      texts.traces += line;
    }
  }
  texts.neutral += nets;
  return texts;
}

TEST(BoardFit, FindsTheConventionThatABoardWasMadeUnder) {
  for (const Convention& made : kConventions) {
    const Board board = BoardOf(PlacedBy(made, {{1, 90}, {1, 30}, {2, 90}, {2, 45}, {2, 0}, {1, 180}}));
    EXPECT_EQ(DescriptionOf(board.reading), DescriptionOf({.rotation = made.rotation,
                                                           .bottom = made.bottom,
                                                           .bottomTurn = made.bottomTurn,
                                                           .widthStep = {},
                                                           .isFitted = true,
                                                           .isConfirmed = true,
                                                           .pinsTouching = 12,
                                                           .pinsCounted = 12}));
  }
}

TEST(BoardFit, LeavesWhatTheDataDoesNotDecideUnconfirmed) {
  struct Case {
    const char* why;
    Convention made;
    std::vector<Placed> components;
    BoardOptions options;
    const char* reading;
  };
  const Case cases[] = {
      {"right angles on the bottom: clockwise is a half turn more",
       {kCcw, kCw, 0},
       {{1, 90}, {2, 90}, {2, 270}},
       {},
       "ccw ccw 180 fitted confirmed 6/6"},
      {"no turn tells the sense",
       {kCw, kCw, 0},
       {{1, 0}, {1, 180}, {2, 0}},
       {},
       "ccw ccw 0 fitted confirmed 6/6"},
      {"only the top", {kCw, kCw, 180}, {{1, 90}, {1, 90}}, {}, "cw ccw 0 fitted confirmed 4/4"},
      {"too few pins", {kCcw, kCcw, 0}, {{1, 90}}, {}, "ccw ccw 0 fitted 2/2"},
      {"the caller is right",
       {kCw, kCcw, 0},
       {{1, 90}, {1, 45}},
       {.rotation = kCw, .bottom = {}, .bottomTurn = {}, .widthStep = {}},
       "cw ccw 0 fitted confirmed 4/4"},
      {"the caller is wrong",
       {kCw, kCcw, 0},
       {{1, 90}, {1, 45}},
       {.rotation = kCcw, .bottom = {}, .bottomTurn = {}, .widthStep = {}},
       "ccw ccw 0 fitted 0/4"},
      {"all is said",
       {kCw, kCcw, 180},
       {{1, 90}, {2, 45}},
       {.rotation = kCw, .bottom = kCcw, .bottomTurn = 180, .widthStep = {}},
       "cw ccw 180 confirmed 4/4"},
      {"part is said",
       {kCcw, kCw, 180},
       {{1, 90}, {2, 45}},
       {.rotation = {}, .bottom = kCw, .bottomTurn = {}, .widthStep = {}},
       "ccw cw 180 fitted confirmed 4/4"},
      {"nothing", {kCcw, kCcw, 0}, {}, {}, "ccw ccw 0 0/0"},
      {"nothing, but the caller",
       {kCcw, kCcw, 0},
       {},
       {.rotation = kCw, .bottom = kCw, .bottomTurn = 180, .widthStep = {}},
       "cw cw 180 0/0"},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(DescriptionOf(BoardOf(PlacedBy(c.made, c.components), c.options).reading), c.reading) << c.why;
  }
}

/// Half of the pins is enough. A second reading that fits as well prevents confirmation.
TEST(BoardFit, ConfirmsIfHalfOfThePinsTouchAndNoOtherReadingFitsAsWell) {
  const Texts half = PlacedBy({kCcw, kCcw, 0}, {{1, 90}, {1, 45}});
  Texts texts = half;
  const std::string more = PlacedBy({kCw, kCcw, 0}, {{1, 90}, {1, 45}}).traces;
  texts.traces += more;  // nets with the same names: the pins touch with both senses
  EXPECT_EQ(DescriptionOf(BoardOf(texts).reading), "ccw ccw 0 fitted 4/4");

  for (const auto& [others, reading] :
       {std::pair{4, "ccw ccw 0 fitted confirmed 4/8"}, {5, "ccw ccw 0 fitted 4/9"}}) {
    texts = half;
    texts.geometry += "$$create_component(H)\n$$attribute(COMPONENT_PIN_DEFINITION, 1, [0, 0])\n";
    for (int i = 0; i < others; ++i) {
      const std::string name = "X" + std::to_string(i);
      texts.neutral += NetOfPin(name, name + "-1");
      texts.traces += "# NET " + name + "\nWIR 1 0 0 0 0\nSEG 500 500 1\nSEG 501 500 1\n";
    }
    texts.neutral += "###Component\n";
    std::string components;
    for (int i = 0; i < others; ++i) components += "COMP X" + std::to_string(i) + " p s H 0 0 1 0\n";
    texts.neutral.insert(texts.neutral.find("###Nets"), components);
    EXPECT_EQ(DescriptionOf(BoardOf(texts).reading), reading);
  }
}

/// The copper that a pin at (0, 0) touches.
TEST(BoardFit, TouchesTracksViasAndAreasOfItsNet) {
  const std::string square = "VER -1 -1\nVER 1 -1\nVER 1 1\nVER -1 1\n";
  const std::string away = "VER 5 5\nVER 6 5\nVER 6 6\n";
  const std::string area = "FIL A L SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\nARE A L SOLID 1 0 4\n";
  const std::string net = "# NET A\nWIR 1 0 0 0 0\n";
  struct Case {
    std::string lines;
    const char* touching;
  };
  const Case cases[] = {
      {net + "SEG -1 0.1 1 0.2\nSEG 1 0.1 1 0.2", "1/1"},
      {net + "SEG -1 0.11 1 0.2\nSEG 1 0.11 1 0.2", "0/1"},
      {net + "SEG 0.1 0 1 0.2\nSEG 1 0 1 0.2", "1/1"},
      {net + "SEG 0.001 0 1\nSEG 1 0 1", "1/1"},
      {net + "SEG 0.0011 0 1\nSEG 1 0 1", "0/1"},
      {net + "SEG 0 0 1 0.0001\nSEG 1 0 1 0.0001", "1/1"},
      {net + "SEG 0 0 0 0.2\nSEG 1 0 0 0.2", "0/0"},
      {net + "SEG 0 0 1 0.2", "0/0"},
      {net + "SEG 0 0 1 V", "1/1"},
      {net + "SEG 0.002 0 1 V", "0/1"},
      {"# NET A\nINC 1 0 0 1 1 1 1", "0/0"},
      {"# NET B\nWIR 1 0 0 0 0\nSEG 0 0 1\nSEG 1 0 1", "0/0"},
      {area + square, "1/1"},
      {area + away, "0/1"},
      {area + "VER 0 0\nVER 1 0", "0/0"},
      {"FIL A L SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\n" + square, "0/0"},
      {area + "VER -9 -9\nVER 9 -9\nVER 9 9\nVER -9 9\nISL 1\n" + square, "0/1"},
      {area + "VER -9 -9\nVER 9 -9\nVER 9 9\nVER -9 9\nISL 1\n" + away, "1/1"},
      {area + "VER -9 -9\nVER 9 -9\nVER 9 9\nVER -9 9\nISL 1\n" + square + "ISL 2\n" + square, "0/1"},
      {area + "VER -9 -9\nVER 9 -9\nVER 9 9\nVER -9 9\nISL 1\n" + square + net + "SEG 0 0 1\nSEG 9 0 1",
       "1/1"},
      {net + "SEG 1e400 0 1\nSEG 0 0 1", "1/1"},
      {net + "SEG -1e400 0 1 1e400\nSEG 1e400 0 1", "0/1"},
  };
  for (const Case& c : cases) {
    const Board board = BoardOf(
        {.tech = {},
         .neutral = "B_UNITS MM\n###Nets\nNET A\nN_PIN U-1 a b c d\n###Component\nCOMP U p s G 0 0 1 0",
         .geometry = "$$create_component(G)\n$$attribute(COMPONENT_PIN_DEFINITION, 1, [0, 0])\n"
                     "$$create_via(V)\n",
         .traces = "UNITS MM\n" + c.lines});
    EXPECT_EQ(std::to_string(board.reading.pinsTouching) + "/" + std::to_string(board.reading.pinsCounted),
              c.touching)
        << c.lines;
  }
}

/// A board of many components, at which a share of the tracks end at the pins as a convention places them,
/// and the others anywhere.
Texts ManyPlacedBy(const Convention& convention, int components, int percent) {
  std::mt19937 random(7);
  std::uniform_int_distribution<int> hundred(0, 99);
  std::vector<Placed> placed;
  placed.reserve(static_cast<std::size_t>(components));
  for (int i = 0; i < components; ++i)
    placed.push_back({1 + hundred(random) % 2, hundred(random) * 15 % 360});
  Texts texts = PlacedBy(convention, placed);
  std::string traces;
  std::istringstream lines(texts.traces);
  for (std::string line; std::getline(lines, line);) {
    const bool isMoved = line.starts_with("SEG") && hundred(random) >= percent;
    traces += (isMoved ? "SEG 900 900 1" : line) + '\n';
  }
  texts.traces = traces;
  return texts;
}

TEST(BoardFit, CountsAsManyPinsAsIfEveryReadingWereCounted) {
  for (const int percent : {100, 60, 5, 0}) {
    for (const Convention& convention : {kConventions[0], kConventions[3], kConventions[6]}) {
      const Texts texts = ManyPlacedBy(convention, 900, percent);
      const Models models(texts);
      std::optional<Reading> best;
      for (const Convention& c : kConventions) {
        const Reading reading =
            models
                .Read(
                    {.rotation = c.rotation, .bottom = c.bottom, .bottomTurn = c.bottomTurn, .widthStep = {}})
                .reading;
        if (!best || reading.pinsTouching > best->pinsTouching) best = reading;
      }
      Reading fitted = models.Read().reading;
      EXPECT_EQ(fitted.isConfirmed, percent > 50);
      fitted.isFitted = best->isFitted;
      fitted.isConfirmed = best->isConfirmed;
      EXPECT_EQ(DescriptionOf(fitted), DescriptionOf(*best)) << percent;
    }
  }
}

}  // namespace
}  // namespace kestrin
