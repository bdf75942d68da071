#include "kestrin/session/misread_numbers.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "support/generators/generators.h"
#include "support/temporary_folder.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

using enum ImportFile;

std::string Described(const std::vector<MisreadNumber>& found) {
  std::string text;
  for (const MisreadNumber& number : found) {
    text += text.empty() ? "" : " ";
    text += std::to_string(number.line) + "/" + std::to_string(number.value) +
            (number.asInteger ? " i[" : " d[") + number.text + "]";
  }
  return text;
}

class MisreadNumbersTest : public testing::Test {
 protected:
  /// What is misread, as in "2/3 d[22,5]": line 2, value 3, as a decimal number.
  [[nodiscard]] std::string In(ImportFile file, const std::string& text) const {
    const auto found = FindMisreadNumbers(file, folder_.File("file", text), 100);
    EXPECT_EQ(found.count, found.first.size());
    EXPECT_TRUE(found.first.empty() || found.first[0].file == file);
    return Described(found.first);
  }

  struct Case {
    std::string lines;
    std::string misread;
  };
  void ExpectEach(ImportFile file, const std::string& before, const std::vector<Case>& cases) const {
    for (const Case& c : cases) EXPECT_EQ(In(file, before + c.lines), c.misread) << c.lines;
  }

  test::TemporaryFolder folder_;
};

TEST_F(MisreadNumbersTest, OfATechFile) {
  ExpectEach(kTech, "",
             {{"$$define_physical_layer(2, \"TOP\", X);", ""},
              {"$$define_physical_layer( \"2.0\" , 22,5);", ""},
              {"$$define_physical_layer(2.5, TOP);", "1/1 i[2.5]"},
              {"$$define_physical_layer(TOP, 2);", "1/1 i[TOP]"},
              {"$$define_physical_layer( , TOP);\n$$define_physical_layer();", ""},
              {"$$define_rule_via(x, 22,5);\nx", ""}});
}

TEST_F(MisreadNumbersTest, OfANeutralFile) {
  const std::string sections = "###Nets\n###Component\n";
  ExpectEach(kNeutral, sections,
             {{"COMP R_1 P S 22,5 1.5 -2e1 1 90", ""},
              {"COMP R_1 P S G 22,5 x 2.5 9O", "3/5 d[22,5] 3/6 d[x] 3/7 i[2.5] 3/8 i[9O]"},
              {"COMP R_1 'P Q' S G 1 2 '1' 90.0", "3/7 i['1']"},
              {"COMP R_1 P S G x\nCOMPX 1", ""},
              {"###Component\nCOMP R_1 P S G x x x x", ""},
              {"P_ADDP a B b 1,5 2 3 4.5 x", "3/4 d[1,5] 3/7 i[4.5] 3/8 i[x]"},
              {"N_PIN 'A-1' x y z w\nNET x", ""},
              {"COMP R P S G 1 2 1 0\nC_PROP (REFLOC,\"U_2,x,y,z\")\nB_UNITS x", ""},
              {"###Board Information\nBOARD B r X:x Y:y z w", ""}});
}

TEST_F(MisreadNumbersTest, OfAGeometryFileInValues) {
  ExpectEach(
      kGeometry, "$$create_component(C);\n",
      {{"$$path(L, 0,2, [1, 2]);\n$$path(L, 0.2 , [1, 2]);", ""},
       {"$$path(L, 0.2mm, [1, 2]);", "2/2 d[0.2mm]"},
       {"$$path(\"L\", \"0.2\", [1, 2]);", "2/2 d[\"0.2\"]"},
       {"$$path(L, , [1, 2]);\n$$path(L, \"\");\n$$path(L);", ""},
       {"$$arc(L, 1, 2, 3, 4, 5, x, 0.1y, @radius);", "2/7 d[x] 2/8 d[0.1y]"},
       {"$$arc(L, , \"\", \"3\");", "2/4 d[\"3\"]"},
       {"$$circle(L, a, b, c, d, e);", "2/2 d[a] 2/3 d[b] 2/4 d[c] 2/5 d[d]"},
       {"$$text(L, \"1,5 x\", 1, \"2\", x, @CL, 22.5, 1, 2, s, s, 3, y, @M);",
        "2/5 d[x] 2/7 i[22.5] 2/13 d[y]"},
       {"$$add(G, x, 2, N, 0.5, 1.0, y, z);", "2/2 d[x] 2/5 i[0.5] 2/7 i[y]"},
       {"$$template_path_width(0.15);\n$$template_path_width( (0.15) );\n$$template_path_width();", ""},
       {"$$template_path_width(x);", "2/1 d[x]"},
       {"$$page(x, y, @mm);\n$$lock_windows(x);\n#$$circle(L, x);\n$$foo(x);", ""},
       {"$$create_probe(P);\n$$attribute(\"COMPONENT_HEIGHT\", [x]);", ""},
       {"$$create_stackup(S);\n$$attribute(\"LAYER_DEFINITION\", x, [y]);", ""}});
}

TEST_F(MisreadNumbersTest, OfAGeometryFileInBrackets) {
  const auto attribute = [](const std::string& name, const std::string& values) {
    return "$$attribute(\"" + name + "\", " + values + ");\n";
  };
  ExpectEach(kGeometry, "$$create_board(B);\n",
             {{attribute("BOARD_PLACEMENT_CLEARANCE", "x, [0.25]"), ""},
              {attribute("BOARD_PLACEMENT_CLEARANCE", "[0.25mm]"), "2/2 d[0.25mm]"},
              {attribute("BOARD_PLACEMENT_CLEARANCE", "x, \"[ y ]\", [z]"), "2/3 d[y]"},
              {attribute("BOARD_ROUTING_LAYERS", "[4.0]") + attribute("BOARD_ROUTING_LAYERS", "[]"), ""},
              {attribute("BOARD_ROUTING_LAYERS", "[4.5]"), "2/2 i[4.5]"},
              {attribute("BOARD_PLACEMENT_OUTLINE", "x, [1, y, , \"2\", z], [w]"), "2/4 d[y] 2/7 d[z]"},
              {attribute("BOARD_PLACEMENT_KEEPOUT", "x, y], [1, z"), "2/5 d[z]"},
              {attribute("ROUTING_KEEPOUT", "x, y], [1, 2], 3, [z], 4"), "2/3 d[y] 2/7 d[z]"},
              {attribute("DRILL_DEFINITION", "2,0, [1, 2]"), ""},
              {attribute("DRILL_DEFINITION", "2x, y, [1a, b, 2c], [d], e]"), "2/2 d[2x] 2/4 d[1a] 2/6 d[2c]"},
              {"$$polygon(L, [1, x, 2], [y], z]);", "2/3 d[x]"},
              {"$$path(L, 1, x, y], [1, 2], z], [w]);", "2/4 d[y] 2/7 d[z] 2/8 d[w]"},
              {"$$initial([0.0, x]);\n$$terminal([1 2, 3, 4x, , \"5\"], y);", "2/2 d[x] 3/3 d[4x]"},
              {"$$initial(a, b[1, x], [y]);\n$$initial(x, y);\n$$terminal([x, y);", "2/3 d[x]"},
              {"$$create_component(C);\n" + attribute("COMPONENT_PIN_DEFINITION", "A1, [x, 2]") +
                   attribute("COMPONENT_HEIGHT", "1.5") + attribute("COMPONENT_HEIGHT", "[1,5]"),
               "3/3 d[x]"},
              {"$$create_pin(P);\n$$initial([1]);\n" + attribute("TERMINAL_DRILL_SIZE", "[x]"), "4/2 d[x]"},
              {attribute("COMPONENT_HEIGHT", "[x]"), ""}});
}

TEST_F(MisreadNumbersTest, OfATracesFile) {
  ExpectEach(
      kTraces, "# NET 'A'\nWIR 1 2 3 4 5\nFIL a b\n",
      {{"VER 1,5 2\nVER 1.5 -2e1 x", "4/1 d[1,5]"},
       {"SEG x 2 28.0 VIA_1 L\nSEG 1 y 2.5 1,5", "4/1 d[x] 5/2 d[y] 5/3 i[2.5]"},
       {"SEG x", "4/1 d[x]"},
       {"WIR x y z w\nWIR x y 3 4 5 z", "5/1 i[x] 5/2 d[y]"},
       {"INC 1 x 3 4.5 5 6 7.5\nINC 1 2 3 4 5 6 7e1", "4/2 d[x] 4/4 i[4.5] 4/7 i[7.5]"},
       {"ANT 1 2 3 4 x\nANT 1 2 3 4 x 6 7.0", "4/5 d[x] 5/5 d[x]"},
       {"GUI x 2 3.5 4 5 6\nCHG 1 2 3 4 x y z", "4/1 d[x] 4/3 i[3.5] 5/5 d[x] 5/6 i[y]"},
       {"ISL x\nISS 1.5 y", "4/1 i[x] 5/1 i[1.5]"},
       {"ARE x y z 1 2.5 3\nARS x y z a b c K d", "5/4 i[a] 5/5 d[b] 5/6 i[c] 5/8 i[d]"},
       {"ARE x y z 1 2 3 G 4.5 5 d e K f\nARE x y z a b", "4/8 i[4.5] 4/10 d[d] 4/11 d[e] 4/13 i[f]"},
       {"FIL x y z 1 2 3 4 5 d 7 8 9 a b c d\nFIL x y z 1 2 3 4 5 6 7 8 9 a 1.5 2 e f g h i j",
        "4/9 d[d] 5/14 i[1.5] 5/16 d[e] 5/17 d[f]"},
       {"TTI x 2 y\nTTI 1 2 z a 5 6 7.5", "4/1 d[x] 5/4 i[a] 5/7 i[7.5]"},
       {"XRF x y\nTET 1.5 y 3 z 5 w\nTTT 1 x 3.5 4 5", "4/1 i[x] 5/1 i[1.5] 5/4 d[z] 6/2 d[x] 6/3 i[3.5]"},
       {"UNITS x\nST x 2 3 4.5\nST 1 2 3 4 5 6.5\nST 1 2 3 4 5 6 x y", "5/1 d[x] 5/4 i[4.5] 6/6 i[6.5]"},
       {"VER -1 2.\nVER 1. -\nVER .5 1.2.3\nVER --1  -1.5", "5/2 d[-] 6/2 d[1.2.3] 7/1 d[--1]"},
       {"VER '1' 2\nXRF 1 'x\nVER x y' 1\nVER z 1", "4/1 d['1'] 7/1 d[z]"},
       {"VER x 1\nVER 1\nVER y 1", "4/1 d[x]"}});
  EXPECT_EQ(In(kTraces, "SEG x\nVER x y\nISL x\n"), "");
}

TEST_F(MisreadNumbersTest, TheFirstAreKeptAndAllAreCounted) {
  const std::string path = folder_.File("t", "XRF a b\r\nXRF " + std::string(300, 'x') + " b\r\nXRF c b\r\n");
  const auto found = FindMisreadNumbers(kTraces, path, 2);
  EXPECT_EQ(found.count, 3U);
  EXPECT_EQ(Described(found.first), "1/1 i[a] 2/1 i[" + std::string(200, 'x') + "]");
  EXPECT_EQ(FindMisreadNumbers(kTraces, folder_.Path("missing"), 2).count, 0U);
}

TEST_F(MisreadNumbersTest, GoodFilesHaveNone) {
  ASSERT_TRUE(test::GenerateBoard(folder_.Path(), 20'000));
  const ImportFile files[] = {kTech, kNeutral, kGeometry, kTraces};
  for (std::size_t i = 0; i < kImportFileCount; ++i) {
    const test::GeneratedFile& generated = test::kGeneratedFiles[i];
    const std::string kind(generated.kind);
    ASSERT_TRUE(test::WriteGenerated(generated, folder_.Path(kind), 300'000));
    for (const std::string& path :
         {test::BoardFile(kind), folder_.Path("board." + kind), folder_.Path(kind)}) {
      EXPECT_EQ(Described(FindMisreadNumbers(files[i], path, 5).first), "") << path;
    }
  }
}

}  // namespace
}  // namespace kestrin
