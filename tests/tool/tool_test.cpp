#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <string>

#include "tests/support/process.h"
#include "tests/support/temporary_folder.h"

namespace kestrin {
namespace {

using test::RunTool;
using test::TemporaryFolder;
using namespace std::string_literals;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

bool IsOneLine(const std::string& text) {
  return std::count(text.begin(), text.end(), '\n') == 1 && text.back() == '\n';
}

TEST(Tool, WrongUsageAndUnreadableFilesGiveOneLineAndStatus2) {
  const TemporaryFolder folder;
  const std::string file = folder.File("a.tech", "");
  static_cast<void>(folder.File("b.tech", ""));
  ASSERT_EQ(std::system(("mkfifo " + folder.Path("fifo")).c_str()), 0);
  struct Case {
    std::string arguments;
    std::string complaint;
  };
  const Case cases[] = {
      {"", "no command is given"},
      {"frobnicate", "frobnicate"},
      {"dump", "no file is given"},
      {"dump --tech", "--tech"},
      {"dump --tech " + file + " --volume 11", "--volume"},
      {"dump --tech " + folder.Path("missing"), folder.Path("missing") + ": No such file"},
      {"dump --tech " + folder.Path(), "not a regular file"},
      {"check --tech " + folder.Path("fifo"), "not a regular file"},
      {"summary " + folder.Path("missing"), folder.Path("missing")},
      {"summary " + folder.Path(), "both end in .tech; choose one with --tech"},
      {"summary " + folder.Path() + " --tech " + file, "no file ends in .neutral; name one with --neutral"},
      {"check --format xml --tech " + file, "--format"},
  };
  for (const Case& c : cases) {
    const auto result = RunTool(c.arguments);
    EXPECT_EQ(result.status, 2) << c.arguments;
    EXPECT_EQ(result.out, "") << c.arguments;
    EXPECT_TRUE(IsOneLine(result.err)) << result.err;
    EXPECT_NE(result.err.find(c.complaint), std::string::npos) << result.err;
  }
}

TEST(Tool, ExplainsItselfOnEveryLevel) {
  for (const char* arguments : {"--help", "summary --help", "dump --help", "check --help"}) {
    const auto result = RunTool(arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out.find("Example:"), std::string::npos) << arguments;
  }
  EXPECT_EQ(RunTool("--version").out, "kestrin " KESTRIN_VERSION "\n");
}

TEST(Tool, DumpsTheModelAsJson) {
  const TemporaryFolder folder;
  const std::string file = folder.File(
      "a.tech",
      "$$define_physical_layer(7, \"A\xE9\x01\", \"x\\y\")\r\nnoise\n$$define_rule_via(\"V\",,\xFF,L\0)"s);
  const auto result = RunTool("dump --tech " + file);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.err, "");
  EXPECT_EQ(result.out, R"({
  "tech": {
    "m_pPinArray": [],
    "m_pStackupArray": [
      {
        "m_arrLogicalLayerNames": [
          "x\\y"
        ],
        "m_sPhysicalLayerName": "Aé\u0001",
        "m_nPhysicalLayerNumber": 7
      }
    ],
    "m_pViaArray": [
      {
        "m_sArg2": "ÿ",
        "m_sArgLast": "L\u0000",
        "m_sArg1": "V"
      }
    ]
  },
  "components": null,
  "nets": null,
  "geometry": null,
  "traces": null
}
)");
}

TEST(Tool, ChecksWhatAnImportSkips) {
  const TemporaryFolder folder;
  const std::string file = folder.File("a.tech", "$$define_rule_via(V)\n\nwhat\x07 is \xE9 this\n");
  const auto text = RunTool("check --tech " + file);
  EXPECT_EQ(text.status, 1);
  EXPECT_EQ(text.out, file + ":3: unknown-record: the line holds no record that is read from this file\n" +
                          "    what\\x07 is é this\n" + file +
                          ": 3 lines read, 1 skipped\n  unknown-record: 1\n");

  const auto json = RunTool("check --format json --tech " + file);
  EXPECT_EQ(json.status, 1);
  rapidjson::Document document;
  ASSERT_FALSE(document.Parse(json.out.c_str()).HasParseError());
  const auto& report = document["files"][0];
  EXPECT_EQ(report["imported"].GetInt() + report["ignored"].GetInt() + report["skipped"].GetInt(), 3);
  EXPECT_STREQ(report["codes"][0]["code"].GetString(), "unknown-record");
  EXPECT_EQ(report["codes"][0]["lines"][0]["line"].GetInt(), 3);
  EXPECT_STREQ(report["codes"][0]["lines"][0]["text"].GetString(), "what\x07 is é this");
}

TEST(Tool, SummarizesTheSampleBoardAndFindsNothingSkipped) {
  const auto summary = RunTool("summary " + kBoard);
  EXPECT_EQ(summary.status, 0);
  EXPECT_EQ(summary.err, "");
  for (const char* line : {"Stack-up: 4 physical layers", "INNER_1         SIGNAL_2, POWER_1", "Via rules: 4",
                           "Board: SENSOR_NODE, MM, 4 routing layers",
                           "routing outline    59 x 39, from (0.5, 0.5) to (59.5, 39.5)",
                           "board              1                1      2     7       3          3",
                           "stack-up: 7 layer definitions"}) {
    EXPECT_NE(summary.out.find(line), std::string::npos) << summary.out;
  }
  const auto check = RunTool("check " + kBoard);
  EXPECT_EQ(check.status, 0) << check.out;
}

TEST(Tool, ShowsProgressOnATerminalOnlyAndWipesItOff) {
  const TemporaryFolder folder;
  const std::string command = "script -qec '" KESTRIN_TOOL " dump --tech " + kBoard + "/board.tech >" +
                              folder.Path("out") + "' " + folder.Path("terminal") + " >/dev/null";
  ASSERT_EQ(std::system(command.c_str()), 0);
  std::stringstream terminal;
  terminal << std::ifstream(folder.Path("terminal")).rdbuf();
  const std::string shown = terminal.str();
  EXPECT_NE(shown.find("Parsing Tech File"), std::string::npos) << shown;
  EXPECT_NE(shown.find("] "), std::string::npos);
  EXPECT_EQ(shown.find("Neutral"), std::string::npos);
  const auto lastWipe = shown.rfind("\x1b[2A\x1b[J");
  ASSERT_NE(lastWipe, std::string::npos);
  EXPECT_EQ(shown.find("Tech", lastWipe), std::string::npos);
}

}  // namespace
}  // namespace kestrin
