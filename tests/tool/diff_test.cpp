#include <gtest/gtest.h>
#include <rapidjson/document.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "support/temporary_folder.h"
#include "tests/support/content_of.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::ContentOf;
using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

/// A file of the sample board in which a text is replaced, wherever it occurs.
struct Edit {
  std::string kind;
  std::string text;
  std::string replacement;
};

/// A copy of the sample board with edits.
class Edited {
 public:
  explicit Edited(const std::vector<Edit>& edits) {
    for (const std::string kind : {"tech", "neutral", "geometry", "traces"}) {
      std::string content = ContentOf((kBoard + "/board.").append(kind));
      for (const Edit& edit : edits) {
        if (edit.kind != kind) continue;
        std::size_t place = content.find(edit.text);
        EXPECT_NE(place, std::string::npos) << edit.text;
        for (; place != std::string::npos; place = content.find(edit.text, place + edit.replacement.size()))
          content.replace(place, edit.text.size(), edit.replacement);
      }
      static_cast<void>(folder_.File(std::string("board.").append(kind), content));
    }
  }
  [[nodiscard]] std::string Path() const { return folder_.Path(); }

 private:
  TemporaryFolder folder_;
};

std::string TextOf(const rapidjson::Value& value) {
  std::ostringstream text;
  if (value.IsString()) text << value.GetString();
  if (value.IsNumber()) text << value.GetDouble();
  return text.str();
}

/// A line for each change: "component U_3 changed x:1>2 y:3>4". An empty value is null.
std::string Changes(const std::string& arguments) {
  std::string json = RunTool("diff --format json " + arguments).out;
  rapidjson::Document document;
  document.Parse(json.c_str());
  EXPECT_FALSE(document.HasParseError()) << json;
  if (document.HasParseError()) return json;
  std::ostringstream text;
  const auto& shift = document["shift"];
  if (shift.IsArray()) text << "shift " << shift[0].GetDouble() << ' ' << shift[1].GetDouble() << '\n';
  for (const auto& change : document["changes"].GetArray()) {
    text << change["kind"].GetString() << ' ' << change["name"].GetString() << ' '
         << change["change"].GetString();
    for (const auto& detail : change["details"].GetArray()) {
      text << ' ' << detail["what"].GetString() << ':' << TextOf(detail["before"]) << '>'
           << TextOf(detail["after"]);
    }
    text << '\n';
  }
  return text.str();
}

TEST(ToolDiff, ReportsExactlyTheEdit) {
  struct Case {
    std::vector<Edit> edits;
    const char* changes;
  };
  const Case cases[] = {
      {{{"neutral", "SENS6 32.0 32.0 1 0", "SENS6 33.2 32.0 1 90"}},
       "component U_3 changed x:32>33.2 rotation:0>90\n"},
      {{{"neutral", "COMP R_2 RS-5002", "COMP R_2 RS-9"}}, "component R_2 changed part:RS-5002>RS-9\n"},
      {{{"neutral", "TESTPAD_10 57.0 18.75 2 0", "TESTPAD_10 57.0 18.75 1 0"}},
       "component TP_2 changed side:bottom>top\n"},
      {{{"neutral", "COMP R_2 ", "COMP R_9 "}, {"neutral", "'R_2-", "'R_9-"}},
       "component R_2 removed\ncomponent R_9 added\npin R_9-1 changed net:>LED_DRV\npin R_9-2 changed "
       "net:>LED_A\n"},
      {{{"neutral", "\"470\"", "\"680\""}}, "property R_2 changed VALUE:470>680\n"},
      {{{"neutral", " (VALUE,\"470\")", ""}}, "property R_2 removed VALUE:470>\n"},
      {{{"neutral", "(VALUE,\"470\")", "(VALUE,\"470\") (TOL,\"1\")"}}, "property R_2 added TOL:>1\n"},
      {{{"neutral", "NET 'SDA'", "NET 'I2C_SDA'"}, {"traces", "NET 'SDA'", "NET 'I2C_SDA'"}},
       "net SDA renamed name:SDA>I2C_SDA\n"},
      {{{"neutral", "NET 'SDA'", "NET 'SDA'\nN_PIN 'X_1-1' 1 1 PAD_1 P"}}, "pin X_1-1 added net:>SDA\n"},
      {{{"neutral", "N_PIN 'R_2-2' 19.0 6.0 PAD_1 SMD_12X14\n", ""}}, "pin R_2-2 changed net:LED_A>\n"},
      {{{"traces", "SEG 12.25 15.0 1 80", "SEG 12.25 15.0 1 50"}}, "wire VIN changed width:0.8>0.5\n"},
      {{{"traces", "SEG 18.25 23.0 1 80 SIGNAL_1 U_2-3\nSEG 18.25 21.0 1",
         "SEG 18.25 23.0 2 80 SIGNAL_1 U_2-3\nSEG 18.25 21.0 2"}},
       "wire VIN changed layer:1>2\n"},
      {{{"traces", "SEG 12.25 15.0 1 80", "SEG 12.5 15.0 1 80"}}, "wire VIN removed\nwire VIN added\n"},
      {{{"traces", "SEG 26.75 20.5 1 VIA_M03", "SEG 26.75 20.5 1 VIA_B05"}},
       "wire GND changed via:VIA_M03>VIA_B05\n"},
      {{{"traces", "VER 13.0 27.5", "VER 13.0 27.25"}}, "fill VCC 3V3 removed\nfill VCC 3V3 added\n"},
      {{{"geometry",
         "$$create_component(\"CHIP_0805\");\n$$page(0.0, 0.0, @mm);\n$$attribute(\"COMPONENT_HEIGHT\", "
         "[0.8]);",
         "$$create_component(\"CHIP_0805\");\n$$page(0.0, 0.0, @mm);\n$$attribute(\"COMPONENT_HEIGHT\", "
         "[0.9]);"}},
       "geometry CHIP_0805 changed m_dHeight:0.8>0.9\n"},
      {{{"geometry", "$$create_pin(\"SMD_05X15\");\n$$page(0.0, 0.0, @mm);",
         "$$create_pin(\"SMD_05X15\");\n$$page(0.0, 0.0, @in);"}},
       "padstack SMD_05X15 changed m_sUnits:MM>IN\n"},
      {{{"geometry", "$$create_board(\"SENSOR_NODE\")", "$$create_board(\"NODE\")"}},
       "board SENSOR_NODE changed name:SENSOR_NODE>NODE\n"},
      {{{"neutral", "COMP R_2 RS-5002", "COMP R_2 0603"}}, "component R_2 changed part:RS-5002>0603\n"},
      {{{"geometry", "[0.5, 0.5, 59.5, 0.5,", "[0.5, 0.5, 59.0, 0.5,"}},
       "board SENSOR_NODE changed routing outline:(0.5, 0.5) (59.5, 0.5) (59.5, 39.5) (0.5, 39.5)>(0.5, 0.5) "
       "(59, 0.5) "
       "(59.5, 39.5) (0.5, 39.5)\n"},
      {{{"tech", "\"VIA_M03\", \"TOP\", \"INNER_1\"", "\"VIA_M03\", \"TOP\", \"BOTTOM\""}},
       "via VIA_M03 changed rule:TOP, INNER_1>TOP, BOTTOM\n"},
      {{{"neutral", "NET 'SDA'", "NET 'SDA'\nN_PIN 'R_9-1' 1 1 PAD_1 P"},
        {"neutral", "COMP R_2 ", "COMP R_9 p s G 5 5 1 0\nCOMP R_2 "}},
       "component R_9 added\npin R_9-1 added net:>SDA\n"},
      {{{"tech", "\"INNER_1\", \"SIGNAL_2\"", "\"MIDDLE\", \"SIGNAL_2\""}},
       "layer 2 changed name:INNER_1>MIDDLE\n"},
  };
  for (const Case& c : cases) {
    const Edited after(c.edits);
    EXPECT_EQ(Changes(kBoard + ' ' + after.Path()), c.changes) << c.edits.front().replacement;
    EXPECT_EQ(RunTool("diff " + kBoard + ' ' + after.Path()).status, *c.changes == '\0' ? 0 : 1);
  }
}

TEST(ToolDiff, FindsNoDifferenceInAnotherWayToWriteTheSame) {
  const std::vector<std::vector<Edit>> cases = {
      {{"neutral", "32.0 32.0 1 0", "32 32.00 1 0"}},
      {{"neutral", "\"470\"", "\"470.0\""}},
      {{"neutral", "\n", "\r\n"}, {"traces", "\n", "\r\n"}},
      {{"traces", "WIR 2 18.25 23.0 12.0 15.0", "WIR 17 18.25 23.0 12.0 15.0"}},
      {{"traces",
        "SEG 12.0 15.0 1 80 SIGNAL_1 C_1-1\nSEG 6.0 15.0 1 80 SIGNAL_1\nSEG 3.5 17.5 1 80 SIGNAL_1 J_1-1",
        "SEG 3.5 17.5 1 80 SIGNAL_1 J_1-1\nSEG 6.0 15.0 1 80 SIGNAL_1\nSEG 12.0 15.0 1 80 SIGNAL_1 C_1-1"}},
      {{"traces", "XRF 2 U_2\n", ""}},
  };
  for (const std::vector<Edit>& edits : cases) {
    const auto diff = RunTool("diff " + kBoard + ' ' + Edited(edits).Path());
    EXPECT_EQ(diff.out, "no difference\n") << edits.front().replacement;
    EXPECT_EQ(diff.status, 0);
  }
}

TEST(ToolDiff, TakesAShiftOfTheBoardOut) {
  const TemporaryFolder folder;
  const std::string neutral =
      "###Component\nCOMP A p s G 1 1 1 0\nCOMP B p s G 2 1 1 0\nCOMP C p s G 3 1 1 0\n";
  const std::string moved =
      "###Component\nCOMP A p s G 11 0.5 1 0\nCOMP B p s G 12 0.5 1 0\nCOMP C p s G 13 0.5 1 0\n";
  const std::string one =
      "###Component\nCOMP A p s G 1 1 1 0\nCOMP B p s G 2.5 1 1 0\nCOMP C p s G 3 1 1 0\n";
  const std::string traces = "UNITS MM\n# NET N\nWIR 1 0 0 0 0\nSEG 1 1 1 0.2\nSEG 2 2 1 0.2\n";
  const std::string movedTraces = "UNITS MM\n# NET N\nWIR 1 0 0 0 0\nSEG 11 0.5 1 0.2\nSEG 12 1.5 1 0.2\n";
  const std::string a = folder.File("a.neutral", neutral);
  EXPECT_EQ(Changes(a + ' ' + folder.File("b.neutral", moved)), "shift 10 -0.5\n");
  EXPECT_EQ(Changes(a + ' ' + folder.File("c.neutral", one)), "component B changed x:2>2.5\n");
  const std::string set = folder.Path("set");
  const std::string movedSet = folder.Path("moved");
  ASSERT_EQ(std::system(("mkdir " + set + " " + movedSet).c_str()), 0);
  for (const std::string& path : {set, movedSet})
    ASSERT_EQ(std::system((": >" + path + "/x.geometry").c_str()), 0);
  static_cast<void>(folder.File("set/x.neutral", neutral));
  static_cast<void>(folder.File("set/x.traces", traces));
  static_cast<void>(folder.File("moved/x.neutral", moved));
  static_cast<void>(folder.File("moved/x.traces", movedTraces));
  EXPECT_EQ(Changes(set + ' ' + movedSet), "shift 10 -0.5\n");
}

TEST(ToolDiff, SaysWhatChangedInWords) {
  const Edited after({{"neutral", "SENS6 32.0 32.0 1 0", "SENS6 33.2 32.0 1 90"},
                      {"neutral", "\"470\"", "\"680\""},
                      {"neutral", "NET 'SDA'", "NET 'I2C_SDA'"},
                      {"traces", "NET 'SDA'", "NET 'I2C_SDA'"},
                      {"traces", " 1 80 ", " 1 60 "}});
  const auto diff = RunTool("diff " + kBoard + ' ' + after.Path());
  EXPECT_EQ(diff.status, 1);
  EXPECT_EQ(diff.out,
            "1 component\n  component U_3 moved by (1.2, 0) mm and turned by 90\n"
            "1 property\n  R_2: VALUE 470 is now 680\n"
            "1 net\n  net SDA is now I2C_SDA (same 2 pins)\n"
            "2 wires\n  VIN: 2 wires have another width\n");
}

TEST(ToolDiff, ComparesNamesAsTexts) {
  const TemporaryFolder folder;
  const std::string pins = "N_PIN U1-1 a b c d\n";
  const std::string a = folder.File("a.neutral", "###Nets\nNET 1\n" + pins + "NET 1.0\nN_PIN U2-1 a b c d\n");
  const std::string b = folder.File("b.neutral", "###Nets\nNET 1\nNET 1.0\n" + pins + "N_PIN U2-1 a b c d\n");
  const std::string c =
      folder.File("c.neutral", "###Nets\nNET 01\n" + pins + "NET 1.0\nN_PIN U2-1 a b c d\n");
  EXPECT_EQ(Changes(a + ' ' + b), "pin U1-1 changed net:1>1.0\n");
  EXPECT_EQ(Changes(a + ' ' + c), "net 1 renamed name:1>01\n");
  EXPECT_EQ(RunTool("diff " + a + ' ' + b).out, "1 pin\n  pin U1-1 is now in net 1.0, before in 1\n");
}

TEST(ToolDiff, ReadsWidthsOfBothSetsInTheSameStep) {
  const TemporaryFolder folder;
  const std::string begin = "UNITS MM\n# NET N\nWIR 1 0 0 0 0\n";
  const std::string a = folder.File("a.traces", begin + "SEG 0 0 1 250\nSEG 1 0 1 250\n");
  const std::string b = folder.File("b.traces", begin + "SEG 0 0 1 2500\nSEG 1 0 1 2500\n");
  EXPECT_EQ(Changes(a + ' ' + b), "wire N changed width:0.25>2.5\n");
}

TEST(ToolDiff, SeesAViaThatMovesAlongItsWire) {
  const TemporaryFolder folder;
  const std::string begin = "UNITS MM\n# NET N\nWIR 1 0 0 0 0\nSEG 0 0 1 0.2\n";
  ASSERT_EQ(std::system(("mkdir " + folder.Path("a") + " " + folder.Path("b")).c_str()), 0);
  for (const std::string side : {"a", "b"}) {
    static_cast<void>(folder.File(side + "/x.geometry", "$$create_via(V)\n"));
    static_cast<void>(folder.File(side + "/x.neutral", "###Nets\nNET N\n"));
  }
  static_cast<void>(folder.File("a/x.traces", begin + "SEG 1 0 1 V\nSEG 2 0 1 0.2\nSEG 3 0 1 0.2\n"));
  static_cast<void>(folder.File("b/x.traces", begin + "SEG 1 0 1 0.2\nSEG 2 0 1 V\nSEG 3 0 1 0.2\n"));
  EXPECT_EQ(Changes(folder.Path("a") + ' ' + folder.Path("b")), "wire N changed via:V>\n");
}

TEST(ToolDiff, IsDrawnInRedAndGreen) {
  const Edited after({{"neutral", "SENS6 32.0 32.0 1 0", "SENS6 36.0 32.0 1 0"},
                      {"traces", "SEG 12.25 15.0 1 80", "SEG 14.5 15.0 1 80"}});
  const TemporaryFolder folder;
  const std::string picture = folder.Path("changes.svg");
  const std::string command = "draw " + kBoard + " --against ";
  ASSERT_EQ(RunTool(command + after.Path() + " -o " + picture).status, 0);
  const std::string svg = ContentOf(picture);
  const auto layer = [&](const std::string& id) {
    const auto begin = svg.find("<g id=\"layer-" + id + "\"");
    EXPECT_NE(begin, std::string::npos) << id;
    return begin == std::string::npos ? std::string() : svg.substr(begin, svg.find("</g>", begin) - begin);
  };
  EXPECT_NE(layer("removed").find("#ff4d4d"), std::string::npos);
  EXPECT_NE(layer("added").find("#3ddc84"), std::string::npos);
  ASSERT_EQ(RunTool(command + kBoard + " -o " + picture).status, 0);
  EXPECT_EQ(ContentOf(picture).find("layer-removed"), std::string::npos);
  EXPECT_EQ(RunTool(command + after.Path() + " -o " + folder.Path("changes.html")).status, 2);
  EXPECT_EQ(RunTool(command + after.Path() + " --view top -o " + picture).status, 2);
}

TEST(ToolDiff, DrawsOnlyWhatCanBeDrawn) {
  const TemporaryFolder folder;
  for (const char* side : {"a", "b"}) {
    std::filesystem::create_directory(folder.Path(side));
    const std::string name = side;
    const bool isBefore = name == "a";
    static_cast<void>(folder.File(name + "/x.geometry",
                                  "$$create_board(B)\n$$page(@mm)\n$$create_component(G)\n$$page(@mm)\n"
                                  "$$attribute(COMPONENT_PLACEMENT_OUTLINE, [1])\n"
                                  "$$attribute(COMPONENT_PLACEMENT_OUTLINE, [0, 0, 1e300, 0, 1, 1])\n"));
    static_cast<void>(folder.File(name + "/x.neutral", "B_UNITS MM\n###Component\nCOMP U_1 P S G " +
                                                           std::string(isBefore ? "0" : "9") + " 0 1 0\n"));
    static_cast<void>(
        folder.File(name + "/x.traces", isBefore ? "UNITS MM\n# NET A\nWIR 1 0 0 0 0\nSEG 1 1 1 0.1\nSEG 2 1 "
                                                   "1 0.1\nSEG 2 2 1 0.3\nSEG 4 2 1 0.3\n"
                                                   "WIR 2 0 0 0 0\nSEG 1 1 1 0.1\nSEG 1e12 5 1 0.2\n"
                                                 : "UNITS MM\n# NET A\n"));
  }
  const std::string picture = folder.Path("changes.svg");
  const std::string command = "draw " + folder.Path("a") + " --against " + folder.Path("b");
  ASSERT_EQ(RunTool(command + " -o " + picture).status, 0);
  const std::string svg = ContentOf(picture);
  EXPECT_NE(svg.find("<g stroke-width=\".1\">\n<path d=\"m1-1h1v-1\"/>"), std::string::npos) << svg;
  EXPECT_NE(svg.find("<g stroke-width=\".3\">\n<path d=\"m2-2h2\"/>"), std::string::npos) << svg;
  ASSERT_EQ(RunTool(command + " --layers removed --box 90,90,91,91 -o " + picture).status, 0);
  EXPECT_EQ(ContentOf(picture).find("<path"), std::string::npos);
  EXPECT_EQ(RunTool(command + " --net A -o " + picture).status, 2);
}

TEST(ToolDiff, EndsWith2IfASetCannotBeRead) {
  EXPECT_EQ(RunTool("diff " + kBoard + " /nowhere").status, 2);
  EXPECT_EQ(RunTool("diff " + kBoard).status, 2);
  EXPECT_EQ(RunTool("diff " + kBoard + "/board.neutral " + kBoard + "/board.traces").status, 2);
  const TemporaryFolder folder;
  const std::string cut = folder.File("a.traces", "UNITS MM\nXRF 1\n");
  EXPECT_EQ(RunTool("diff " + cut + ' ' + cut).status, 2);
}

}  // namespace
}  // namespace kestrin
