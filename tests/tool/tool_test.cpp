#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <string>

#include "support/temporary_folder.h"
#include "tests/support/content_of.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::ContentOf;
using test::RunTool;
using test::TemporaryFolder;
using namespace std::string_literals;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

bool IsOneLine(const std::string& text) {
  return std::count(text.begin(), text.end(), '\n') == 1 && text.back() == '\n';
}

TEST(Tool, WrongUsageAndUnreadableFilesPrintOneLineAndReturn2) {
  const TemporaryFolder folder;
  for (const char* name : {"e.tech", "b.tech", "d.tech", "c.tech"}) static_cast<void>(folder.File(name, ""));
  const std::string file = folder.File("a.tech", "");
  struct Case {
    std::string arguments;
    std::string complaint;
  };
  const Case cases[] = {
      {"", "missing command"},
      {"frobnicate", "frobnicate"},
      {"dump", "no file to read; name a folder, files, or - with an option such as --traces"},
      {"dump --tech", "--tech"},
      {"dump --tech " + file + " --volume 11", "--volume"},
      {"dump --tech " + folder.Path("missing"),
       "cannot open \"" + folder.Path("missing") + "\": No such file"},
      {"dump --tech " + folder.Path(), "is a folder, not a file"},
      {"summary " + folder.Path("missing"), "cannot open \"" + folder.Path("missing") + "\": No such file"},
      {"check -", "the ending of \"-\" does not tell which file it is; name it with --tech"},
      {"check --tech - --neutral -", "only one file can be standard input"},
      {"dump " + folder.Path("a.tech") + " " + folder.Path("b.tech"), "are both the Tech file; name one"},
      {"dump " + folder.Path() + " " + kBoard, "are both folders; name one"},
      {"board --encoding ebcdic --tech " + file, "--encoding"},
      {"help frobnicate", "there is no command frobnicate"},
      {"summary " + folder.Path(), "both end in .tech; choose one with --tech"},
      {"summary " + folder.Path() + " --tech " + file,
       "no .neutral file in \"" + folder.Path() + "\"; name one with --neutral"},
      {"check --format xml --tech " + file, "--format"},
      {"board --rotation left --tech " + file, "--rotation"},
      {"board --bottom-turn 90 --tech " + file, "--bottom-turn"},
      {"board --width-step 0 --tech " + file, "--width-step"},
      {"board --width-step nan --tech " + file, "--width-step"},
      {"board --width-step inf --tech " + file, "--width-step"},
  };
  for (const Case& c : cases) {
    const auto result = RunTool(c.arguments);
    EXPECT_EQ(result.status, 2) << c.arguments;
    EXPECT_EQ(result.out, "") << c.arguments;
    EXPECT_TRUE(IsOneLine(result.err)) << result.err;
    EXPECT_NE(result.err.find(c.complaint), std::string::npos) << result.err;
  }
}

TEST(Tool, SummarizesASetInOneLineOfJson) {
  const auto summary = RunTool("summary --format json " + kBoard);
  EXPECT_EQ(summary.status, 0);
  EXPECT_TRUE(IsOneLine(summary.out)) << summary.out;
  rapidjson::Document document;
  ASSERT_FALSE(document.Parse(summary.out.c_str()).HasParseError());
  EXPECT_EQ(document["files"].Size(), 4U);
  EXPECT_EQ(document["files"][3]["lines"].GetInt(), 404);
  EXPECT_EQ(document["components"].GetInt(), 16);
  EXPECT_EQ(document["length"][0]["name"].GetString(), "TOP"s);
  EXPECT_TRUE(document["reading"]["confirmed"].GetBool());

  const TemporaryFolder folder;
  const auto stopped =
      RunTool("summary --format json --traces " + folder.File("a.traces", "UNITS MM\nVER 9\n"));
  EXPECT_EQ(stopped.status, 1);
  ASSERT_FALSE(document.Parse(stopped.out.c_str()).HasParseError());
  EXPECT_EQ(document["files"][0]["end"].GetString(), "stopped"s);
}

TEST(Tool, HasHelpOnEveryLevel) {
  for (const char* arguments : {"--help", "help", "help check", "summary --help", "dump --help",
                                "check --help", "board --help", "diff --help", "draw --help"}) {
    const auto result = RunTool(arguments);
    EXPECT_EQ(result.status, 0);
    EXPECT_NE(result.out.find("Example:"), std::string::npos) << arguments;
    EXPECT_EQ(result.out.find("TEXT"), std::string::npos) << arguments;  // what CLI11 calls a value
  }
  EXPECT_EQ(RunTool("--version").out, "kestrin " KESTRIN_VERSION "\n");
  EXPECT_EQ(RunTool("-V").out, "kestrin " KESTRIN_VERSION "\n");
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

TEST(Tool, DumpsRecordsOfEachModelWithTheirMembersInOrder) {
  const TemporaryFolder folder;
  const std::string neutral = folder.File(
      "a.neutral", "###Component\nCOMP a b c d 5 6 7 8\nC_PROP (REFLOC,\"R,1,2,3,d,5,6,7,h,i\")\n");
  const std::string geometry = folder.File("a.geometry",
                                           "$$create_via(V)\n$$path(L, 0.1, [1, 1e400])\n$$polygon(L)\n"
                                           "$$create_stackup(S)\n$$attribute(LAYER_DEFINITION, x)\n");
  const std::string traces = folder.File("a.traces", "# NET 'A'\nINC 1 2 3 4 5 6 7\nSEG 1 .5 3 12\n");
  std::string dump =
      RunTool("dump --neutral " + neutral + " --geometry " + geometry + " --traces " + traces).out;
  std::erase_if(dump, [](char c) { return c == ' ' || c == '\n'; });
  for (const char* part :
       {R"("m_pInfos":[{"m_Data":{"m_sValue1":"a","m_sValue2":"b","m_sValue3":"c","m_sValue4":"d",)"
        R"("m_dValue5":5,"m_dValue6":6,"m_nValue7":7,"m_nValue8":8},"m_sRefLocFirst":"R","m_pRefLocs":[{)",
        R"("m_pStackup":{"m_sName":"S","m_sUnits":"","m_pLayers":[{"m_pValues":["x"],)"
        R"("m_sDefinition":"LAYER_DEFINITION"}]},)",
        R"("m_pVias":[{"m_nViaType":0,"m_sName":"V","m_sUnits":"","m_dDrillSize":0,"m_pDrawObjs":[)"
        R"({"m_sType":"LINE","m_sLayer":"L","m_dWidth":0.1,"m_pCoords":[1,"Infinity"]},)"
        R"({"m_sType":"POLYGON","m_sLayer":"L","m_pCoords":[]}],"m_pAdds":[],"m_pTexts":[]}],)",
        R"("m_pSegArray":[{"m_dValue1":1,"m_dValue2":0.5,"m_nValue3":3,"m_sValue4":"","m_sValue5":"",)"
        R"("m_dValue4":12}])"}) {
    EXPECT_NE(dump.find(part), std::string::npos) << part << "\n" << dump;
  }
}

TEST(Tool, DumpsWhatWasReadBeforeATracesLineThatIsTooShort) {
  const TemporaryFolder folder;
  const std::string file = folder.File("a.traces", "UNITS MM\nARS 1\nVER 9\nUNITS IN");
  const auto dump = RunTool("dump --traces " + file);
  EXPECT_EQ(dump.status, 1);
  EXPECT_EQ(dump.err,
            "kestrin: " + file + ":3: import stopped: the line has too few values for its record\n");
  rapidjson::Document document;
  ASSERT_FALSE(document.Parse(dump.out.c_str()).HasParseError());
  EXPECT_STREQ(document["traces"]["m_sUnits"].GetString(), "MM");
  EXPECT_EQ(document["traces"]["m_pFilArray"][0]["m_nValue7"].GetInt(), 1);
  EXPECT_EQ(document["traces"]["m_pFilArray"][0]["m_pArsArray"][0]["m_pVerArray"].Size(), 0U);
}

TEST(Tool, ChecksWhatAnImportSkips) {
  const TemporaryFolder folder;
  const std::string file = folder.File("a.tech", "$$define_rule_via(V)\n\nwhat\x07 is \xE9 this\n");
  const auto text = RunTool("check --tech " + file);
  EXPECT_EQ(text.status, 1);
  EXPECT_EQ(text.out, file + ":3: warning: unknown record [unknown-record]\n" + "    what\\x07 is é this\n" +
                          file + ": 3 lines read, 1 skipped\n1 warning: lines were skipped\n");

  const auto json = RunTool("check --format json --tech " + file);
  EXPECT_EQ(json.status, 1);
  EXPECT_TRUE(json.out.ends_with("}\n"));
  rapidjson::Document document;
  ASSERT_FALSE(document.Parse(json.out.c_str()).HasParseError());
  const auto& report = document["files"][0];
  EXPECT_EQ(report["imported"].GetInt() + report["ignored"].GetInt() + report["skipped"].GetInt(), 3);
  EXPECT_STREQ(report["codes"][0]["code"].GetString(), "unknown-record");
  EXPECT_EQ(report["codes"][0]["lines"][0]["line"].GetInt(), 3);
  EXPECT_STREQ(report["codes"][0]["lines"][0]["text"].GetString(), "what\x07 is é this");
}

TEST(Tool, ReportsThatItsOutputCannotBeWrittenOrAFileNotRead) {
  const std::string ofTheBoard = " --tech " + kBoard + "/board.tech";
  for (const std::string& arguments : {"--help"s, "help"s, "summary" + ofTheBoard, "check" + ofTheBoard}) {
    const int status = std::system((KESTRIN_TOOL " " + arguments + " >/dev/full 2>/dev/null").c_str());
    EXPECT_EQ(WEXITSTATUS(status), 2) << arguments;
  }
  for (const std::string command : {"summary", "dump", "board", "check", "check --format json"}) {
    const auto unwritten = RunTool(command + ofTheBoard + " 2>&1 >/dev/full | cat");
    EXPECT_EQ(unwritten.out, "kestrin: cannot write to standard output\n") << command;
    const auto unreadable = RunTool(command + " --tech /proc/self/mem");
    EXPECT_EQ(unreadable.status, 1);
    EXPECT_TRUE(IsOneLine(unreadable.err)) << unreadable.err;
  }
}

TEST(Tool, NamesAnyFileInValidOutput) {
  const TemporaryFolder folder;
  const std::string file = folder.File("a\xFF\x1B.tech", "noise");
  const auto json = RunTool("check --format json --tech '" + file + "'");
  rapidjson::Document document;
  EXPECT_FALSE((document.Parse<rapidjson::kParseValidateEncodingFlag>(json.out.c_str()).HasParseError()));
  EXPECT_NE(RunTool("check --tech '" + file + "'").out.find("a\xC3\xBF\\x1B.tech:1:"), std::string::npos);
}

TEST(Tool, CutsLongNamesInTables) {
  const TemporaryFolder folder;
  std::string lines = "$$define_rule_via(" + std::string(100'000, 'x') + ")\n";
  for (int i = 0; i < 100; ++i) lines += "$$define_rule_via(V)\n";
  EXPECT_LT(RunTool("summary --tech " + folder.File("a.tech", lines)).out.size(), 20'000U);
}

TEST(Tool, SummarizesTheSampleBoardAndFindsNothingSkipped) {
  const auto summary = RunTool("summary " + kBoard);
  EXPECT_EQ(summary.status, 0);
  EXPECT_EQ(summary.err, "");
  for (const char* line : {"Stack-up: 4 physical layers",
                           "INNER_1         SIGNAL_2, POWER_1",
                           "Via rules: 4",
                           "Unit of the Neutral file: MM",
                           "3  SENSOR_NODE",
                           "Imported: nets section 2 of 2, component section 2 of 2, selected by placement 3",
                           " by placement 3 (SENSOR_NODE, value 6 is 1)",
                           "7  CHIP_0805",
                           "Nets: 15 with 55 pins",
                           "14  GND",
                           "  and 5 more\n",
                           "Traces: units MM",
                           "segments                  103",
                           "islands                    29",
                           "rotation of components: counter-clockwise on the top, ",
                           "counter-clockwise on the bottom; confirmed by the copper",
                           "pins that touch copper of their net: 53 of 53",
                           "digits only: 0.01 of the Traces file's unit",
                           "components: 16, 14 on the top and 2 on the bottom",
                           "4  BOTTOM    29.003",
                           "GND         14.164    14      11    11      2     0",
                           "all nets   230.554    55      40    20      5     1",
                           "Longest nets: 10 of 15",
                           "Board: SENSOR_NODE, MM, 4 routing layers",
                           "routing outline    59 x 39, from (0.5, 0.5) to (59.5, 39.5)",
                           "board              1                1      2     7       3          3",
                           "stack-up: 7 layer definitions"}) {
    EXPECT_NE(summary.out.find(line), std::string::npos) << summary.out;
  }
  EXPECT_EQ(summary.out.find(" \n"), std::string::npos) << summary.out;
  const auto check = RunTool("check " + kBoard);
  EXPECT_EQ(check.status, 0) << check.out;
}

TEST(Tool, ShowsProgressOnATerminalOnlyAndErasesIt) {
  const TemporaryFolder folder;
  const std::string command = "script -qec '" KESTRIN_TOOL " dump --tech " + kBoard + "/board.tech >" +
                              folder.Path("out") + "' " + folder.Path("terminal") + " >/dev/null";
  ASSERT_EQ(std::system(("TERM=xterm " + command).c_str()), 0);
  const std::string shown = ContentOf(folder.Path("terminal"));
  EXPECT_NE(shown.find("Parsing Tech File"), std::string::npos) << shown;
  EXPECT_NE(shown.find("] "), std::string::npos);
  EXPECT_EQ(shown.find("Neutral"), std::string::npos);
  const auto lastWipe = shown.rfind("\x1b[2A\x1b[J");
  ASSERT_NE(lastWipe, std::string::npos);
  EXPECT_EQ(shown.find("Tech", lastWipe), std::string::npos);
  for (const std::string setting : {"TERM=dumb ", "TERM=xterm NO_COLOR=1 "}) {
    ASSERT_EQ(std::system((setting + command).c_str()), 0);
    EXPECT_EQ(ContentOf(folder.Path("terminal")).find("Parsing"), std::string::npos) << setting;
  }
}

}  // namespace
}  // namespace kestrin
