#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <string>

#include "support/temporary_folder.h"
#include "tests/support/content_of.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::ContentOf;
using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

/// What an XPath expression selects in a file; the program also checks that the file is valid XML.
std::string Select(const std::string& file, const std::string& expression) {
  const TemporaryFolder folder;
  const std::string out = folder.Path("out");
  const int status =
      std::system(("xmllint --xpath '" + expression + "' '" + file + "' >" + out + " 2>&1").c_str());
  std::string selected = ContentOf(out);
  if (!selected.empty() && selected.back() == '\n') selected.pop_back();
  return status == 0 ? selected : "status " + std::to_string(status) + ": " + selected;
}

/// A board with a track, a via, an area with a hole, and a part on the bottom that is turned by 90 degrees.
class SmallBoard {
 public:
  SmallBoard() {
    static_cast<void>(folder_.File("a.tech",
                                   "$$define_physical_layer(1, \"TOP & <1>\", SIGNAL_1)\n"
                                   "$$define_physical_layer(2, BOTTOM, SIGNAL_2)\n"));
    static_cast<void>(folder_.File("a.neutral",
                                   "B_UNITS MM\n###Nets\nNET 'G\"<&'\nN_PIN U_1-A a b c d\nNET 'B'\n"
                                   "###Component\nCOMP U_1 PART SYM G 10 5 2 90\n"));
    static_cast<void>(folder_.File(
        "a.geometry",
        "$$create_board(B)\n$$page(@mm)\n"
        "$$attribute(\"BOARD_PLACEMENT_OUTLINE\", [0, 0, 20, 0, 20, 10, 0, 10])\n"
        "$$text(\"SILKSCREEN_2\", \"BELOW\", 5, 8, 1, @CL, 0)\n"
        "$$attribute(\"DRILL_DEFINITION_UNPLATED\", 3, [18, 2])\n"
        "$$create_pin(P)\n$$page(@mm)\n$$attribute(\"TERMINAL_THRUHOLE_DEFINITION\")\n"
        "$$attribute(\"TERMINAL_DRILL_SIZE\", [0.5])\n"
        "$$polygon(\"PAD_1\", [-1, -0.25, 1, -0.25, 1, 0.25])\n$$circle(\"PAD_2\", 0, 0, 0.8, 0)\n"
        "$$create_via(V)\n$$page(@mm)\n$$attribute(\"TERMINAL_DRILL_SIZE\", [0.3])\n"
        "$$circle(\"SIGNAL_1\", 0, 0, 0.6, 0)\n$$circle(\"SIGNAL_2\", 0, 0, 0.6, 0)\n"
        "$$create_component(G)\n$$page(@mm)\n$$attribute(\"COMPONENT_DEFAULT_PADSTACK\", P)\n"
        "$$attribute(COMPONENT_PIN_DEFINITION, A, [2, 0])\n"
        "$$arc(\"SILKSCREEN_1\", 1, 0, -1, 0, 0, 0, 0.1, @center)\n"
        "$$path(\"SILKSCREEN_1\", 0.1, [0, 0, 3, 1])\n"));
    static_cast<void>(
        folder_.File("a.traces",
                     "UNITS MM\n# NET 'G\"<&'\nWIR 1 0 0 0 0\nSEG 1 1 1 0.25\nSEG 2.5 1 1 0.25\n"
                     "SEG 2.5 3 1 V\nINC 1 1 1 1 9 9 1\n"
                     "# NET 'B'\nWIR 1 0 0 0 0\nSEG 1 2 1 X\nSEG 3 2 1 X\n"
                     "FIL 'B' 'SIGNAL_2' SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\n"
                     "ARE B 'SIGNAL_2' SOLID 1 0.25 8\nVER 0 0\nVER 9 0\nVER 0 9\n"
                     "ISL 1\nVER 1 1\nVER 2 1\nVER 1 2\n"));
  }

  /// Draws it and returns the path of the picture.
  [[nodiscard]] std::string Draw(const std::string& options, const std::string& name = "a.svg") const {
    std::string path = folder_.Path(name);
    const auto result = RunTool("draw " + folder_.Path() + " --rotation ccw --bottom ccw --bottom-turn 0 " +
                                options + " -o " + path);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(result.out, "");
    return path;
  }
  [[nodiscard]] std::string Path() const { return folder_.Path(); }

 private:
  TemporaryFolder folder_;
};

TEST(Draw, AnSvgShowsEveryKindOfThingWhereItIs) {
  const SmallBoard board;
  const std::string svg = board.Draw("--tags");
  struct Case {
    const char* what;
    const char* expression;
    const char* selected;
  };
  const Case cases[] = {
      {"layers are named groups", "string(//*[@id=\"layer-TOP____1_\"]/@*[name()=\"inkscape:label\"])",
       "TOP & <1>"},
      {"the outline", "string(//*[@id=\"layer-board\"]//*/@d)", "m0 0h20v-10h-20z"},
      {"a track with its width and net", "string(//*[@id=\"layer-TOP____1_\"]/*[@stroke-width=\".25\"]/*/@d)",
       "m1-1h1.5v-2"},
      {"its net", "string(//*[@id=\"layer-TOP____1_\"]/*[@stroke-width=\".25\"]/*/@data-net)", "G\"<&"},
      {"a track of unknown width is thin",
       "string(//*[@id=\"layer-TOP____1_\"]/*[@stroke-width=\".011\"]/*/@d)", "m1-2h2"},
      {"a via is a dot as wide as its pad", "string(//*[@id=\"layer-vias\"]/*[@stroke-width=\".6\"]/*/@d)",
       "m2.5-3h0"},
      {"an area with its hole", "string(//*[@id=\"layer-BOTTOM\"]/*[@fill-rule][1]/*/@d)",
       "m0 0h9l-9-9zm1-1h1l-1-1z"},
      {"planes are translucent and have a contour",
       "string(//*[@id=\"layer-BOTTOM\"]/*[@fill-opacity and @stroke-width][1]/*/@data-net)", "B"},
      // The pad (-1, -.25), (1, -.25), (1, .25) is mirrored, turned by 90 degrees and moved to (10, 3),
      // below.
      {"a polygon pad on the bottom", "string(//*[@id=\"layer-BOTTOM\"]//*[@data-pin=\"U_1-A\"]/@d)",
       "m10.25-4v2h-.5z"},
      {"its other side", "string(//*[@id=\"layer-TOP____1_\"]//*[@data-pin=\"U_1-A\"]/@d)", "m10-3h0"},
      {"drills", "string(//*[@id=\"layer-drills\"]/*[@stroke-width=\".5\"]/*/@d)", "m10-3h0"},
      {"unplated drills", "string(//*[@id=\"layer-drills-unplated\"]/*[@stroke-width=\"3\"]/*/@d)",
       "m18-2h0"},
      // The arc begins at (1, 0) and turns counter-clockwise; mirrored and turned, to the left of the part.
      {"an arc of a bottom part",
       "starts-with(//*[@id=\"layer-SILKSCREEN_2\"]/*[@stroke-width=\".1\"]/*/@d, \"m10-4-.087-.004\")",
       "true"},
      {"a line of a bottom part",
       "contains(//*[@id=\"layer-SILKSCREEN_2\"]/*[@stroke-width=\".1\"]/*/@d, \"m0 1-1 3\")", "true"},
      {"text from below", "string(//*[@id=\"layer-SILKSCREEN_2\"]//*[name()=\"text\"]/@transform)",
       "matrix(-1 0 0 1 5 -7.5)"},
      {"a connection that is not routed", "string(//*[@id=\"layer-open\"]//*/@d)", "m1-1 8-8"},
      {"the reference", "string(//*[@id=\"layer-bodies-bottom\"]//*[name()=\"text\"])", "U_1"},
  };
  for (const Case& c : cases) EXPECT_EQ(Select(svg, c.expression), c.selected) << c.what;
}

TEST(Draw, TheFinishedBoardIsSeenFromItsSide) {
  const SmallBoard board;
  const std::string top = board.Draw("--view top", "top.svg");
  const std::string bottom = board.Draw("--view bottom", "bottom.svg");
  struct Case {
    const std::string& picture;
    const char* expression;
    const char* selected;
  };
  const Case cases[] = {
      {top, "string(/*/@viewBox)", "-.5 -10.5 21 11"},
      {bottom, "string(/*/@viewBox)", "-20.5 -10.5 21 11"},
      {top, "count(//*[@id=\"layer-SILKSCREEN_2\"])", "0"},
      {top, "count(//*[@id=\"layer-BOTTOM\"])", "0"},
      {top, "string(//*[@id=\"layer-TOP____1_-pads\"]//*/@d)", "m10-3h0"},
      {bottom, "string(//*[@id=\"layer-BOTTOM-pads\"]//*/@d)", "m-10.25-4v2h.5z"},
      {bottom, "string(//*[@id=\"layer-SILKSCREEN_2\"]//*[name()=\"text\"]/@transform)",
       "matrix(1 0 0 1 -5 -7.5)"},
      {bottom, "string(//*[@id=\"layer-drills-unplated\"]/*/*/@d)", "m-18-2h0"},
      // The copper under the mask is opaque, and holes are as dark as the background.
      {bottom, "count(//*[@fill-opacity])", "0"},
      {bottom, "//*[@id=\"layer-drills\"]/@stroke = //*[name()=\"rect\"]/@fill", "true"},
  };
  for (const Case& c : cases) EXPECT_EQ(Select(c.picture, c.expression), c.selected) << c.expression;
}

TEST(Draw, OptionsChooseWhatIsShown) {
  const SmallBoard board;
  struct Case {
    const char* options;
    const char* expression;
    const char* selected;
  };
  const Case cases[] = {
      {"--box -1,2,9.5,7 --width 210", "concat(/*/@viewBox, \" \", /*/@width, \" \", /*/@height)",
       "-1 -7 10.5 5 210 100"},
      {"--box -1,2,9.5,7", "concat(/*/@width, \" \", /*/@height)", "10.5mm 5mm"},
      {"--box 15,0,20,10", "count(//*[@data-pin])", "0"},
      {"--net B", "count(//*[@id=\"layer-BOTTOM\"]/*[not(@opacity)]/*)", "1"},
      {"--net B", "count(//*[@id=\"layer-TOP____1_\"]/*[not(@opacity)]/*)", "1"},
      {"--net B", "count(//*[@id=\"layer-TOP____1_\"]/*[@opacity]/*)", "2"},
      {"--net B --net \"'G\\\"<&'\"", "count(//*[@data-pin and ../@opacity])", "0"},
      {"--layers BOTTOM", "count(//*[starts-with(@id, \"layer-\")])", "5"},
      {"--layers SIGNAL_2", "count(//*[@id=\"layer-BOTTOM\" or @id=\"layer-vias\"])", "2"},
      {"--layers SILKSCREEN_2,open", "count(//*[starts-with(@id, \"layer-\")])", "3"},
      {"--layers SILKSCREEN_1", "count(//*[starts-with(@id, \"layer-\")])", "1"},
      {"--layers bodies-bottom --box 19,9,20,10", "count(//*[starts-with(@id, \"layer-\")])", "1"},
      {"--theme print", "string(//*[name()=\"rect\"]/@fill)", "#ffffff"},
      {"", "count(//*[@data-net])", "0"},
  };
  for (const Case& c : cases)
    EXPECT_EQ(Select(board.Draw(c.options), c.expression), c.selected) << c.options << ' ' << c.expression;
}

TEST(Draw, WrongOptionsEndWith2AndLeaveTheOldPicture) {
  const TemporaryFolder folder;
  const std::string old = folder.File("old.svg", "old");
  struct Case {
    std::string options;
    std::string complaint;
  };
  const Case cases[] = {
      {"--net GMD -o " + old, "no net \"GMD\"; did you mean \"GND\"?"},
      {"--net vcc_3v3 -o " + old, "did you mean \"VCC 3V3\"?"},
      {"--net zzzzzzzzzz -o " + old, "no net \"zzzzzzzzzz\"\n"},
      {"--layers top -o " + old, "no layer \"top\"; did you mean \"TOP\"?"},
      {"--layers TOP,SIGNAL_9 -o " + old, "\"SIGNAL_1\", \"SIGNAL_2\" or \"SIGNAL_3\"?"},
      {"--view left -o " + old, "--view"},
      {"--box 1,2,3 -o " + old, "--box needs four numbers"},
      {"--box 1,2,1,4 -o " + old, "--box needs four numbers"},
      {"--box 1,2,x,4 -o " + old, "--box needs four numbers"},
      {"--box 0,0,1,nan -o " + old, "--box needs four numbers"},
      {"--width 0 -o " + old, "--width needs a number from 1 to 30000"},
      {"--box 0,0,1,99 --width 20000 -o " + old, "more than 30000 pixels high"},
      {"", "--output"},
      {"-o " + folder.Path("a.gif"), "its name must end in .svg"},
      {"-o " + folder.Path("none/a.svg"), "cannot write \"" + folder.Path("none/a.svg") + "\": No such file"},
      {"-o " + folder.Path() + "/.svg/", "its name must end in .svg"},
  };
  for (const Case& c : cases) {
    const auto result = RunTool("draw " + kBoard + ' ' + c.options);
    EXPECT_EQ(result.status, 2) << c.options;
    EXPECT_EQ(std::count(result.err.begin(), result.err.end(), '\n'), 1) << result.err;
    EXPECT_NE(result.err.find(c.complaint), std::string::npos) << result.err;
  }
  EXPECT_EQ(ContentOf(old), "old");
}

TEST(Draw, NeverLeavesHalfAPicture) {
  const TemporaryFolder folder;
  const std::string old = folder.File("old.svg", "old");
  const std::string draw = KESTRIN_TOOL " draw " + kBoard + " -o " + old + " 2>" + folder.Path("err");
  ASSERT_EQ(std::system(("sh -c \"trap '' XFSZ; ulimit -f 4; exec " + draw + "\"; test $? = 2").c_str()), 0);
  EXPECT_NE(ContentOf(folder.Path("err")).find("cannot write \"" + old + "\": File too large"),
            std::string::npos);
  EXPECT_EQ(ContentOf(old), "old");
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 2);

  std::filesystem::create_symlink(old, folder.Path("link.svg"));
  EXPECT_EQ(RunTool("draw " + kBoard + " -o " + folder.Path("link.svg")).status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link.svg")));
  const std::string first = ContentOf(old);
  EXPECT_EQ(RunTool("draw " + kBoard + " -o " + old).status, 0);
  EXPECT_EQ(ContentOf(old), first) << "equal boards make equal pictures";
  EXPECT_EQ(std::distance(std::filesystem::directory_iterator(folder.Path()), {}), 3);
}

TEST(Draw, FollowsALinkToAFileThatDoesNotExistYet) {
  const TemporaryFolder folder;
  std::filesystem::create_symlink("new.svg", folder.Path("link.svg"));
  EXPECT_EQ(RunTool("draw " + kBoard + " -o " + folder.Path("link.svg")).status, 0);
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Path("link.svg")));
  EXPECT_TRUE(std::filesystem::is_regular_file(folder.Path("new.svg")));
}

TEST(Draw, SaysThatUnitsAreUnknown) {
  const TemporaryFolder folder;
  const std::string track = "# NET A\nWIR 1 0 0 0 0\nSEG 1 1 1 0.1\nSEG 5 5 1 0.1\n";
  const std::string options = " -o " + folder.Path("a.svg");
  const auto unknown =
      RunTool("draw --traces " + folder.File("a.traces", "UNITS FURLONG\n" + track) + options);
  EXPECT_EQ(unknown.status, 0);
  EXPECT_NE(unknown.err.find("the unit of a file is unknown"), std::string::npos) << unknown.err;
  const std::string known = "draw --traces " + folder.File("b.traces", "UNITS MIL\n" + track) + options;
  EXPECT_EQ(RunTool(known).err, "");
  const auto placements =
      RunTool(known + " --neutral " + folder.File("a.neutral", "###Component\nCOMP U_1 P S G 0 0 1 0\n"));
  EXPECT_NE(placements.err.find("the unit of a file is unknown"), std::string::npos) << placements.err;
}

TEST(Draw, WorksOnAnyOfTheFiles) {
  const TemporaryFolder folder;
  const std::string svg = folder.Path("a.svg");
  const struct {
    std::string files;
    const char* expression;
    const char* selected;
  } cases[] = {
      {"--tech " + kBoard + "/board.tech", "count(//*[starts-with(@id, \"layer-\")])", "0"},
      {"--neutral " + kBoard + "/board.neutral", "count(//*[@id=\"layer-bodies-top\"]//*[name()=\"text\"])",
       "14"},
      {"--geometry " + kBoard + "/board.geometry", "string(//*[@id=\"layer-board\"]//*/@d)",
       "m0 0h60v-40h-60z"},
      {"--traces " + kBoard + "/board.traces", "count(//*[@id=\"layer-SIGNAL_2\"]//*[@fill-rule])", "1"},
  };
  for (const auto& c : cases) {
    const auto result = RunTool("draw " + c.files + " -o " + svg);
    EXPECT_EQ(result.status, 0) << result.err;
    EXPECT_EQ(Select(svg, c.expression), c.selected) << c.files;
  }
  const auto unconfirmed = RunTool("draw --neutral " + kBoard + "/board.neutral -o " + svg);
  EXPECT_NE(unconfirmed.err.find("not confirmed"), std::string::npos);
}

TEST(Draw, HostileCoordinatesAndSizesAreLeftOut) {
  const TemporaryFolder folder;
  const std::string traces = folder.File(
      "a.traces",
      "UNITS MM\n# NET A\nWIR 1 0 0 0 0\nSEG 1e400 0 1 0.1\nSEG 5 5 1 0.1\nWIR 1 0 0 0 0\nSEG 1e300 0 1 0.1\n"
      "SEG 5 5 1 0.1\nWIR 2 0 0 0 0\nSEG 1 1 1 1e300\nSEG 2 2 1 0.1\nWIR 3 0 0 0 0\nSEG 3 3 1 1.0\n"
      "SEG 3 3 1 1.0\nINC 1 1e400 1 1 9 9 1\nFIL A L S 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\n"
      "ARE A L S 1 0.25 8\nVER 0 0\nVER 9 1e9\nVER 0 9\n");
  const std::string svg = folder.Path("a.svg");
  ASSERT_EQ(RunTool("draw --traces " + traces + " -o " + svg).status, 0);
  EXPECT_EQ(Select(svg, "count(//*[name()=\"path\"])"), "2");
  EXPECT_EQ(Select(svg, "string(//*[@stroke-width=\"1\"]/*/@d)"), "m3-3h0");
  EXPECT_EQ(Select(svg, "string(/*/@viewBox)"), ".45 -4 3.55 3.55");
}

TEST(Draw, AnSvgKeepsTheCharactersAndSpacesOfTexts) {
  const TemporaryFolder folder;
  const std::string svg = folder.Path("a.svg");
  const auto draw = [&](const std::string& text, const std::string& encoding) {
    const std::string geometry =
        folder.File("a.geometry", "$$create_board(B)\n$$text(X, \"" + text + "\", 0, 0, 1, @CL, 0)\n");
    EXPECT_EQ(RunTool("draw --geometry " + geometry + " --encoding " + encoding + " -o " + svg).status, 0);
    return Select(svg, "string(//*[name()=\"text\"])");
  };
  EXPECT_EQ(draw("Gr\xC3\xB6\xC3\x9F\x65 \xE9\x9B\xBB <&>", "utf-8"),
            "Gr\xC3\xB6\xC3\x9F\x65 \xE9\x9B\xBB <&>");
  EXPECT_EQ(draw("Gr\xF6\xDF\x65", "latin-1"), "Gr\xC3\xB6\xC3\x9F\x65");
  EXPECT_EQ(draw("a\x01\xEF\xBF\xBF\xEF\xBF\xBE", "utf-8"), "a\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(draw(" A  B ", "utf-8"), " A  B ");
  EXPECT_EQ(Select(svg, "string(//*[name()=\"text\"]/../@xml:space)"), "preserve");
}

TEST(Draw, APictureWithoutABoardIsAsLargeAsItsTexts) {
  const TemporaryFolder folder;
  const std::string svg = folder.Path("a.svg");
  const std::string geometry = folder.File(
      "a.geometry", "$$create_board(B)\n$$page(@mm)\n$$text(X, \"ABCDEFGHIJ\", 0, 0, 4, @BR, 90)\n");
  ASSERT_EQ(RunTool("draw --geometry " + geometry + " -o " + svg).status, 0);
  EXPECT_EQ(Select(svg, "string(/*/@viewBox)"), "-4.6 -.6 5.2 31.2");
}

TEST(Draw, ManyLayersOfCopperHaveTheColoursOfTheirDepths) {
  const TemporaryFolder folder;
  std::string traces = "UNITS MM\n# NET A\n";
  for (int layer = 1; layer <= 300; ++layer) {
    const std::string number = std::to_string(layer);
    traces += "WIR 1 0 0 0 0\nSEG 0 0 " + number + " 1\nSEG 1 0 " + number + " 1\n";
  }
  const std::string svg = folder.Path("a.svg");
  ASSERT_EQ(RunTool("draw --traces " + folder.File("a.traces", traces) + " -o " + svg).status, 0);
  EXPECT_EQ(Select(svg, "string(//*[@id=\"layer-SIGNAL_1\"]/@stroke)"), "#e5534b");
  EXPECT_EQ(Select(svg, "string(//*[@id=\"layer-SIGNAL_300\"]/@stroke)"), "#4c8dff");
}

TEST(Draw, PensAndTextsAreAsFineOnALargeBoardAndInASmallBox) {
  const TemporaryFolder folder;
  const std::string files =
      "--geometry " + folder.File("a.geometry",
                                  "$$create_board(B)\n$$page(@mm)\n$$path(X, 0.126, [0, 0, 3000, 0.1])\n"
                                  "$$path(X, 0, [0, 0, 0.2, 0.1])\n$$text(X, \"A\", 0, 0, 1, @CL, 30)\n");
  const std::string svg = folder.Path("a.svg");
  ASSERT_EQ(RunTool("draw " + files + " -o " + svg).status, 0);
  EXPECT_EQ(Select(svg, "count(//*[@stroke-width=\".126\"])"), "1");
  EXPECT_EQ(Select(svg, "starts-with(//*[name()=\"text\"]/@transform, \"matrix(.866 -.5 .5 .866 \")"),
            "true");
  ASSERT_EQ(RunTool("draw " + files + " --box 0,0,.9,.9 -o " + svg).status, 0);
  EXPECT_EQ(Select(svg, "count(//*[@stroke-width=\".001\"])"), "1");
}

TEST(Draw, ALargeDrawingThatIsPlacedVeryOftenIsLeftOutInTheEnd) {
  const TemporaryFolder folder;
  std::string geometry = "$$create_component(G)\n$$page(@mm)\n$$path(SILKSCREEN_1, 0.1, [0, 0";
  for (int i = 0; i < 100'000; ++i) geometry += ", 1, " + std::to_string(i % 7);
  std::string neutral = "B_UNITS MM\n###Component\n";
  for (int i = 0; i < 10'000; ++i) neutral += "COMP U_" + std::to_string(i) + " P S G 0 0 1 0\n";
  const std::string svg = folder.Path("a.svg");
  const auto drawn = RunTool("draw --geometry " + folder.File("a.geometry", geometry + "])\n") +
                             " --neutral " + folder.File("a.neutral", neutral) + " -o " + svg);
  EXPECT_EQ(drawn.status, 0);
  EXPECT_NE(drawn.err.find("components left out: their drawings are too large"), std::string::npos)
      << drawn.err;
  EXPECT_LT(std::filesystem::file_size(svg), 200'000'000U);
}

TEST(Draw, AnImportThatStoppedGivesThePictureOfWhatWasRead) {
  const TemporaryFolder folder;
  const std::string svg = folder.Path("a.svg");
  const auto drawn = RunTool(
      "draw --traces " + folder.File("a.traces", "# NET A\nWIR 1 0 0 0 0\nSEG 1 1 1\nSEG 2 1 1\nGUI 1\n") +
      " -o " + svg);
  EXPECT_EQ(drawn.status, 1);
  EXPECT_NE(drawn.err.find("import stopped"), std::string::npos) << drawn.err;
  EXPECT_EQ(Select(svg, "string(//*[@id=\"layer-SIGNAL_1\"]//*/@d)"), "m1-1h1");
}

}  // namespace
}  // namespace kestrin
