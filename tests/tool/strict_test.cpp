#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <string>

#include "support/temporary_folder.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";
const std::string kBegin = "UNITS MM\nST 1 2 3 4\nXRF 1 U_1\nTTT 1 2 3.5\nTTT 1 2 3 4 5\n";

TEST(ToolStrict, ReadsTheSampleBoardAsTheSessionDoes) {
  const std::string traces = " --traces " + kBoard + "/board.traces";
  const auto strict = RunTool("dump --strict" + traces);
  EXPECT_EQ(strict.status, 0);
  EXPECT_EQ(strict.err, "");
  std::string expected = RunTool("dump" + traces).out;
  expected.replace(
      expected.rfind("\n}"), std::string::npos,
      ",\n  \"strict\": {\n    \"result\": 0,\n    \"error\": \"\",\n    \"line\": 404\n  }\n}\n");
  EXPECT_EQ(strict.out, expected);
  const auto summary = RunTool("summary --strict " + kBoard);
  EXPECT_EQ(summary.status, 0);
  for (const char* line :
       {"Nets: 15 with 55 pins", "segments                  103", "accepted with 0 syntax errors"}) {
    EXPECT_NE(summary.out.find(line), std::string::npos) << summary.out;
  }
  EXPECT_EQ(RunTool("check --strict " + kBoard).status, 0);
}

TEST(ToolStrict, ListsSyntaxErrorsBesideSkippedLines) {
  const TemporaryFolder folder;
  const std::string tech = folder.File("a.tech", "what\n");
  const std::string file = folder.File("a.traces", kBegin + "ST 1 2 3 4\n");
  const auto text = RunTool("check --strict --tech " + tech + " --traces " + file);
  EXPECT_EQ(text.status, 1);
  EXPECT_EQ(text.err,
            "kestrin: " + file + ":4: import stopped: the line has too few values for its record\n");
  EXPECT_EQ(text.out, file +
                          ":4: error: found a real number (3.5), expected a whole number [syntax-error]\n" +
                          tech + ": warning: no line of the Tech file was imported [nothing-imported]\n" +
                          tech + ":1: warning: unknown record [unknown-record]\n    what\n" + tech +
                          ": 1 line read, 1 skipped\n" + file + ": 4 lines read, 0 skipped\n" + file +
                          ": strict reader: accepted with 1 syntax error\n" +
                          "1 error, 2 warnings: the import stopped early\n");
  rapidjson::Document document;
  document.Parse(RunTool("check --strict --format json --traces " + file).out.c_str());
  ASSERT_FALSE(document.HasParseError());
  EXPECT_EQ(document["strict"]["errors"][0]["line"].GetInt(), 4);
  EXPECT_EQ(RunTool("dump --strict --traces " + file).status, 0);
}

TEST(ToolStrict, ShowsTheModelSoFarIfTheParserGivesUp) {
  const TemporaryFolder folder;
  const std::string file = folder.File("a.traces", kBegin + "TTT \xE9'\n");
  const auto dump = RunTool("dump --strict --traces " + file);
  EXPECT_EQ(dump.status, 1);
  EXPECT_EQ(dump.err, "kestrin: " + file +
                          ":6: strict reader gave up: found an apostrophe ('), expected a whole number\n");
  rapidjson::Document document;
  ASSERT_FALSE(document.Parse(dump.out.c_str()).HasParseError());
  EXPECT_EQ(document["traces"]["m_pTttArray"].Size(), 1U);
  EXPECT_EQ(document["strict"]["result"].GetInt(), 1);
  EXPECT_STREQ(document["strict"]["error"].GetString(), "Traces File Error: parse error - ErrorLine : 5");
  EXPECT_EQ(document["strict"]["line"].GetInt(), 6);

  const auto empty = RunTool("dump --strict --traces " + folder.File("b.traces", ""));
  EXPECT_EQ(empty.status, 1);
  EXPECT_NE(empty.out.find("\"traces\": null"), std::string::npos);
  const auto none = RunTool("dump --strict --tech " + kBoard + "/board.tech");
  EXPECT_EQ(none.status, 2);
  EXPECT_EQ(none.out, "");
}

}  // namespace
}  // namespace kestrin
