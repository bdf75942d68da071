#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <algorithm>
#include <string>

#include "support/temporary_folder.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

/// The JSON without the blanks and line ends that make it readable.
std::string Tight(std::string json) {
  json.erase(std::remove_if(json.begin(), json.end(), [](char c) { return c == ' ' || c == '\n'; }),
             json.end());
  return json;
}

TEST(ToolBoard, PrintsEverythingItReads) {
  const TemporaryFolder folder;
  static_cast<void>(folder.File(
      "a.tech", "$$define_physical_layer(2, BOTTOM, SIGNAL_2)\n$$define_physical_layer(1, TOP, SIGNAL_1)\n"));
  static_cast<void>(
      folder.File("a.neutral",
                  "B_UNITS IN\n###Nets\nNET 'G\xE9'\nN_PIN U1-1 a b c d\nN_PIN X-1 a b c d\n###Component\n"
                  "COMP U1 PART SYM G 0.1 1e400 2 90\nCOMP U2 P S NONE 0 0 1 0\n"));
  static_cast<void>(folder.File(
      "a.geometry",
      "$$create_board(B)\n$$page(@mm)\n$$attribute(\"BOARD_PLACEMENT_OUTLINE\", [0, 0, 1, 0, 1, 0.1])\n"
      "$$create_component(G)\n$$attribute(COMPONENT_PIN_DEFINITION, 1, [1, 0])\n"
      "$$attribute(COMPONENT_PIN_DEFINITION, 2, [0, 0])\n"
      "$$attribute(\"COMPONENT_DEFAULT_PADSTACK\", \"P\")\n$$create_via(V)\n"));
  static_cast<void>(folder.File("a.traces",
                                "UNITS MM\n# NET 'G\xE9'\nWIR 1 0 0 0 0\nSEG 0 0 1 25\nSEG 3 4 1 25\nSEG 3 5 "
                                "1 V\nSEG 4 5 2\nINC 1 0.1 0.2 1 0.3 0.4 1\n"
                                "FIL 'G\xE9' 'SIGNAL_2' SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\nARE G "
                                "'SIGNAL_2' SOLID 1 0.25 8\nVER 0 0\nVER 9 0\n"
                                "VER 0 9\nVER 0 0\nISL 1\nVER 1 1\nVER 2 1\nVER 1 2\n"));
  const auto result =
      RunTool("board " + folder.Path() + " --rotation cw --bottom ccw --bottom-turn 180 --width-step 0.02");
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(
      Tight(result.out),
      R"({"format":"kestrin-board","version":1,"name":"B","units":"mm",)"
      R"("reading":{"rotation":"cw","bottom":"ccw","bottomTurn":180,"widthStep":0.02,"fitted":false,"confirmed":false,)"
      R"("pinsTouching":0,"pinsCounted":1},"outline":[[0,0],[1,0],[1,0.1]],)"
      R"("layers":[{"number":1,"name":"TOP","names":["SIGNAL_1"]},{"number":2,"name":"BOTTOM","names":["SIGNAL_2"]}],)"
      R"("components":[{"name":"U1","part":"PART","symbol":"SYM","geometry":"G","x":2.54,"y":"Infinity","rotation":90,)"
      R"("side":"bottom","pins":[{"name":"1","x":2.54,"y":"Infinity","padstack":"P","net":"Gé"},)"
      R"({"name":"2","x":2.54,"y":"Infinity","padstack":"P","net":null}]},)"
      R"({"name":"U2","part":"P","symbol":"S","geometry":"NONE","x":0,"y":0,"rotation":0,"side":"top","pins":[]}],)"
      R"("nets":[{"name":"Gé","pins":["U1-1","X-1"],)"
      R"("tracks":[{"layer":1,"width":0.5,"points":[[0,0],[3,4],[3,5]]},{"layer":2,"width":null,"points":[[3,5],[4,5]]}],)"
      R"("length":[{"layer":1,"mm":6},{"layer":2,"mm":1}],"vias":[{"name":"V","x":3,"y":5}],)"
      R"("areas":[{"layer":"SIGNAL_2","outline":[[0,0],[9,0],[0,9]],"holes":[[[1,1],[2,1],[1,2]]]}],)"
      R"("open":[[[0.1,0.2],[0.3,0.4]]]}]})");
}

TEST(ToolBoard, OfASingleFileHasItsContents) {
  const TemporaryFolder folder;
  const auto tech = RunTool("board --tech " + folder.File("a.tech", "\n"));
  EXPECT_EQ(tech.status, 0);
  EXPECT_EQ(
      Tight(tech.out),
      R"({"format":"kestrin-board","version":1,"name":"","units":"mm",)"
      R"("reading":{"rotation":"ccw","bottom":"ccw","bottomTurn":0,"widthStep":null,"fitted":false,)"
      R"("confirmed":false,"pinsTouching":0,"pinsCounted":0},"outline":null,"layers":[],"components":[],"nets":[]})");

  const auto stopped = RunTool("board --traces " + folder.File("a.traces", "# NET A\nGUI 1\n# NET B"));
  EXPECT_EQ(stopped.status, 1);
  EXPECT_NE(stopped.err.find("a.traces:2: import stopped"), std::string::npos) << stopped.err;
  EXPECT_NE(Tight(stopped.out).find(R"("nets":[{"name":"A",)"), std::string::npos) << stopped.out;
}

TEST(ToolBoard, ReadsTheSampleBoard) {
  const auto result = RunTool("board " + kBoard);
  EXPECT_EQ(result.status, 0);
  rapidjson::Document board;
  ASSERT_FALSE((board.Parse<rapidjson::kParseValidateEncodingFlag>(result.out.c_str()).HasParseError()));
  EXPECT_TRUE(board["reading"]["confirmed"].GetBool());
  EXPECT_EQ(board["reading"]["pinsTouching"].GetInt(), board["reading"]["pinsCounted"].GetInt());
  EXPECT_EQ(board["reading"]["widthStep"].GetDouble(), 0.01);
  EXPECT_EQ(board["components"].Size(), 16U);
  EXPECT_EQ(board["nets"].Size(), 15U);
  EXPECT_EQ(RunTool("board " + kBoard + " --strict").out, result.out);
}

}  // namespace
}  // namespace kestrin
