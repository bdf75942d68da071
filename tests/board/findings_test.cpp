#include "kestrin/board/findings.h"

#include <gtest/gtest.h>

#include <array>
#include <string>
#include <vector>

#include "kestrin/session/import_session.h"
#include "support/generators/generators.h"
#include "support/temporary_folder.h"
#include "tests/support/sample_board.h"

namespace kestrin {
namespace {

/// The files of a set, by ImportFile.
using Files = std::array<std::string, kImportFileCount>;

/// A set without any fault.
Files Sound() {
  return {
      "$$define_physical_layer(1, TOP, SIGNAL_1)\n"
      "$$define_physical_layer(2, BOTTOM, SIGNAL_2)\n"
      "$$define_rule_via(V, TOP, BOTTOM)\n",
      "###Board Information\n"
      "B_UNITS MM\n"
      "###Nets\n"
      "NET GND\n"
      "N_PIN U1-1 a b c d\n"
      "N_PIN U2-1 a b c d\n"
      "NET VCC\n"
      "N_PIN U1-2 a b c d\n"
      "N_PIN U2-2 a b c d\n"
      "###Component\n"
      "COMP U1 p s G 10 10 1 0\n"
      "COMP U2 p s G 20 10 1 90\n",
      "$$create_board(B)\n"
      "$$page(0, 0, @mm)\n"
      "$$attribute(BOARD_PLACEMENT_OUTLINE, [0, 0, 30, 0, 30, 20, 0, 20])\n"
      "$$create_component(G)\n"
      "$$page(0, 0, @mm)\n"
      "$$attribute(COMPONENT_DEFAULT_PADSTACK, P)\n"
      "$$attribute(COMPONENT_PIN_DEFINITION, 1, [1, 0])\n"
      "$$attribute(COMPONENT_PIN_DEFINITION, 2, [-1, 0])\n"
      "$$attribute(COMPONENT_PADSTACK_OVERRIDE, 2, P)\n"
      "$$create_pin(P)\n"
      "$$page(0, 0, @mm)\n"
      "$$path(SIGNAL_1, 0.2, [0, 0, 1, 0])\n"
      "$$create_via(V)\n"
      "$$page(0, 0, @mm)\n",
      "UNITS MM\n"
      "# NET 'GND'\n"
      "WIR 1 0 0 0 0\n"
      "SEG 11 10 1 0.2\n"
      "SEG 15 10 1 V\n"
      "SEG 20 11 2 0.2\n"
      "# NET 'VCC'\n"
      "WIR 1 0 0 0 0\n"
      "SEG 9 10 1 0.2\n"
      "SEG 20 9 1 0.2\n"
      "FIL GND SIGNAL_1 SOLID 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\n"
      "ARE GND SIGNAL_1 SOLID 1 0 4\n"
      "VER 25 1\n"
      "VER 26 1\n"
      "VER 26 2\n"};
}

class Set {
 public:
  explicit Set(const Files& files) {
    const std::array<const char*, kImportFileCount> names{"a.tech", "a.neutral", "a.geometry", "a.traces"};
    session_.KeepSourceLines(true);
    for (std::size_t i = 0; i < files.size(); ++i) {
      if (files[i] == "none") continue;
      const std::string path = folder_.File(names[i], files[i]);
      if (i == 0) session_.vSetTechFilePath(path);
      if (i == 1) session_.vSetNeutralFilePath(path);
      if (i == 2) session_.vSetGeomFilePath(path);
      if (i == 3) session_.vSetTraceFilePath(path);
    }
    session_.ParseGivenFiles();
  }

  [[nodiscard]] Findings Check() const {
    return FindFaults(CheckedSetOf(session_), ReadBoard(ModelsOf(session_)));
  }

 private:
  test::TemporaryFolder folder_;
  CPC_KESTRIN_GET session_;
};

/// A line for each finding: "unknown-pin N5 T3". N5 is line 5 of the Neutral file.
std::string Short(const Findings& findings) {
  constexpr std::string_view kLetters = "SNGT";  // S: stack-up, the Tech file
  std::string text;
  for (const Finding& finding : findings.list) {
    text += KindOf(finding.code).name;
    for (const FindingPlace& place : finding.at) {
      text += std::string(" ") + kLetters[static_cast<std::size_t>(place.file)] + std::to_string(place.line);
    }
    text += '\n';
  }
  return text;
}

/// A file of the sound set in which a text is replaced.
struct Edit {
  ImportFile file;
  std::string text;
  std::string replacement;
};

Files Edited(const std::vector<Edit>& edits) {
  Files files = Sound();
  for (const Edit& edit : edits) {
    std::string& file = files[static_cast<std::size_t>(edit.file)];
    const auto place = file.find(edit.text);
    EXPECT_NE(place, std::string::npos) << edit.text;
    if (place != std::string::npos) file.replace(place, edit.text.size(), edit.replacement);
  }
  return files;
}

constexpr ImportFile kTech = ImportFile::kTech;
constexpr ImportFile kNeutral = ImportFile::kNeutral;
constexpr ImportFile kGeometry = ImportFile::kGeometry;
constexpr ImportFile kTraces = ImportFile::kTraces;

struct Case {
  std::vector<Edit> edits;
  const char* findings;
};

void ExpectFindings(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    EXPECT_EQ(Short(Set(Edited(c.edits)).Check()), c.findings) << c.edits.front().replacement;
  }
}

TEST(FindingsTest, FindNothingInSoundSets) {
  EXPECT_EQ(Short(Set(Sound()).Check()), "");
  CPC_KESTRIN_GET sample;
  sample.KeepSourceLines(true);
  test::ImportBoard(sample);
  const Findings findings = FindFaults(CheckedSetOf(sample), ReadBoard(ModelsOf(sample)));
  for (const Finding& finding : findings.list) {
    EXPECT_EQ(KindOf(finding.code).severity, Severity::kNote) << finding.message;
  }
  for (const std::uint64_t legs : {1U, 100U, 20'000U}) {
    const test::TemporaryFolder folder;
    ASSERT_TRUE(test::GenerateBoard(folder.Path(), legs));
    CPC_KESTRIN_GET session;
    session.vSetTechFilePath(folder.Path("board.tech"));
    session.vSetNeutralFilePath(folder.Path("board.neutral"));
    session.vSetGeomFilePath(folder.Path("board.geometry"));
    session.vSetTraceFilePath(folder.Path("board.traces"));
    session.ParseGivenFiles();
    EXPECT_EQ(Short(FindFaults(CheckedSetOf(session), ReadBoard(ModelsOf(session)))), "") << legs;
  }
}

TEST(FindingsTest, FindFaultsOfNetsAndComponents) {
  ExpectFindings({
      {{{kNeutral, "U2-1", "U9-1"}}, "unknown-component N6\n"},
      {{{kNeutral, "U2-1", "X"}}, "unknown-component N6\n"},
      {{{kNeutral, "N_PIN U2-1",
         "N_PIN J-1 a b c d\nN_PIN J-2 a b c d\nN_PIN J-3 a b c d\nN_PIN J-4 a b c d\nN_PIN J-5 a b c "
         "d\nN_PIN U2-1"}},
       "unknown-component N6\nunknown-component N7\nunknown-component N8\nunknown-component "
       "N9\nunknown-component N10\n"},
      {{{kNeutral, "U2-2", "U2-3"}}, "unknown-pin N9\n"},
      {{{kNeutral, "N_PIN U1-2", "N_PIN U1-1 a b c d\nN_PIN U1-2"}}, "pin-in-two-nets N8 N5\n"},
      {{{kNeutral, "N_PIN U2-1", "N_PIN U1-1 a b c d\nN_PIN U2-1"}}, ""},
      {{{kNeutral, "COMP U2", "COMP U1 p s G 12 10 1 0\nCOMP U2"}}, "duplicate-component N12 N11\n"},
      {{{kNeutral, "U2 p s G", "U2 p s H"}}, "unknown-geometry N12\n"},
      {{{kNeutral, "20 10 1 90", "31 10 1 90"},
        {kTraces, "SEG 20 11", "SEG 31 11"},
        {kTraces, "20 9", "31 9"}},
       "outside-outline N12\n"},
      {{{kNeutral, "20 10 1 90", "30 10 1 90"},
        {kTraces, "SEG 20 11", "SEG 30 11"},
        {kTraces, "20 9", "30 9"}},
       ""},
      {{{kNeutral, "###Comp", "NET GND\nN_PIN U3-1 a b c d\n###Comp"},
        {kNeutral, "COMP U2", "COMP U3 p s G 5 5 1 0\nCOMP U2"}},
       "duplicate-net N10 N4\n"},
      {{{kTraces, "# NET 'VCC'", "# NET 'VDD'"}}, "net-not-in-neutral T7\nnet-not-in-traces N7\n"},
      {{{kTraces, "UNITS MM\n", "UNITS MM\n# NET 'X'\n"}}, "net-not-in-neutral T2\n"},
      {{{kNeutral, "###Comp", "NET ONE\nN_PIN U3-1 a b c d\n###Comp"},
        {kNeutral, "COMP U2", "COMP U3 p s G 5 5 1 0\nCOMP U2"}},
       ""},
      {{{kNeutral, "U1-1", "V1-1"},
        {kNeutral, "U1-2", "V1-2"},
        {kNeutral, "U2-1", "V2-1"},
        {kNeutral, "U2-2", "V2-2"}},
       "no-match N5\n"},
  });
}

TEST(FindingsTest, FindFaultsOfGeometriesLayersAndCopper) {
  ExpectFindings({
      {{{kGeometry, "DEFAULT_PADSTACK, P", "DEFAULT_PADSTACK, Q"}}, "unknown-padstack G6\n"},
      {{{kGeometry, "OVERRIDE, 2, P", "OVERRIDE, 2, Q"}}, "unknown-padstack G9\n"},
      {{{kGeometry, "$$create_via(V)", "$$create_pin(P)\n$$page(0, 0, @mm)\n$$create_via(V)"}},
       "duplicate-geometry G13 G10\n"},
      {{{kTech, "(2, BOTTOM", "(1, BOTTOM"}, {kTraces, "SEG 20 11 2", "SEG 20 11 1"}},
       "duplicate-layer S2 S1\n"},
      {{{kTech, "BOTTOM, SIGNAL_2", "TOP, SIGNAL_2"}}, "duplicate-layer S2 S1\nunknown-layer S3\n"},
      {{{kTraces, "SEG 20 11 2", "SEG 20 11 3"}}, "unknown-layer T6\n"},
      {{{kGeometry, "path(SIGNAL_1", "path(SIGNAL_9"}}, "unknown-layer G12\n"},
      {{{kGeometry, "path(SIGNAL_1", "path(PAD_2"}}, ""},
      {{{kTech, "(V, TOP, BOTTOM)", "(V, TOP, INNER)"}}, "unknown-layer S3\n"},
      {{{kGeometry, "$$create_pin",
         "$$attribute(TRACE_KEEPOUT, SIGNAL_9, [0, 0, 1, 0, 1, 1])\n$$create_pin"}},
       "unknown-layer G10\n"},
      {{{kGeometry, "$$create_pin", "$$attribute(COMPONENT_BODY_OUTLINE, [0, 0, 1])\n$$create_pin"}},
       "degenerate-area G10\n"},
      {{{kTraces, "FIL GND SIGNAL_1", "FIL GND X"}, {kTraces, "ARE GND SIGNAL_1", "ARE GND X"}},
       "unknown-layer T11\n"},
      {{{kTraces, "SEG 15 10 1 V", "SEG 15 10 1 W"}, {kTraces, "SEG 20 11 2", "SEG 20 11 1"}},
       "unknown-via T5\n"},
      {{{kTraces, "FIL GND", "FIL X"}}, "unknown-fill-net T11\n"},
      {{{kTraces, "VER 26 2\n", ""}}, "degenerate-area T12\n"},
      {{{kTraces, "VER 26 2\n", "VER 26 2\nISL 1\nVER 25.5 1.1\n"}}, "degenerate-area T16\n"},
      {{{kGeometry, "30, 20, 0, 20]", "30, 20, 0]"}}, "degenerate-area G3\noutside-outline N11\n"},
      {{{kGeometry, "0, 0, 30, 0, 30, 20, 0, 20]", "0, 0, 30, 0]"}}, "degenerate-area G3\n"},
      {{{kTraces, "SEG 9 10", "SEG 9 15"},
        {kTraces, "SEG 20 9", "SEG 21 9"},
        {kTraces, "SEG 20 11", "SEG 20 12"}},
       "unconfirmed-reading N0 T0\n"},
  });
}

TEST(FindingsTest, FindFaultsOfUnitsAndFiles) {
  ExpectFindings({
      {{{kNeutral, "B_UNITS MM", "B_UNITS FOOT"}}, "unknown-unit N2\n"},
      {{{kTraces, "UNITS MM\n", ""}}, "unknown-unit T0\n"},
      {{{kGeometry, "(V)\n$$page(0, 0, @mm)", "(V)\n$$page(0, 0, @foot)"}}, "unknown-unit G14\n"},
      {{{kGeometry, "(V)\n$$page(0, 0, @mm)",
         "(V)\n$$page(0, 0, @foot)\n$$create_via(W)\n$$page(0, 0, @foot)"}},
       "unknown-unit G14 G16\n"},
      {{{kGeometry, "(V)\n$$page(0, 0, @mm)", "(V)\n$$page(0, 0)"}}, ""},
      {{{kGeometry, "(V)\n$$page(0, 0, @mm)", "(V)\n$$page(0, 0, @mil)"}}, "unit-mismatch N2 G14\n"},
      {{{kNeutral, "10 10 1 0", "10 10 1 0x"}}, "not-a-number N11\n"},
      {{{kNeutral, "10 10 1 0", "10,0 10 1 0"}}, "not-a-number N11\n"},
      {{{kNeutral, "20 10 1 90", "20 10 1 90.5"}}, "not-a-number N12\n"},
      {{{kTraces, "VER 26 2\n", "VER 26 2"}}, "no-final-newline T15\n"},
  });
}

TEST(FindingsTest, NameFilesThatAreEmptyOrMixedUp) {
  Files files = Sound();
  files[0] = "# nothing\n";
  EXPECT_EQ(Short(Set(files).Check()), "nothing-imported S0\n");
  files[0] = files[3];
  EXPECT_EQ(Short(Set(files).Check()), "wrong-file S0\n");
  files = {"none", "none", "none", "none"};
  files[2] = Sound()[0];
  EXPECT_EQ(Short(Set(files).Check()), "wrong-file G0\n");
  files[2] = "";
  EXPECT_EQ(Short(Set(files).Check()), "nothing-imported G0\n");
}

TEST(FindingsTest, KeepAHundredOfACodeAndCountAll) {
  Files files = Sound();
  std::string pins;
  for (int i = 0; i < 150; ++i) pins += "N_PIN U1-X" + std::to_string(i) + " a b c d\n";
  std::string known;
  for (int i = 0; i < 150; ++i)
    known += "$$attribute(COMPONENT_PIN_DEFINITION, K" + std::to_string(i) + ", [1, 1])\n";
  for (int i = 0; i < 150; ++i) pins += "N_PIN U1-K" + std::to_string(i) + " a b c d\n";
  files[1].replace(files[1].find("NET VCC"), 0, pins);
  files[2].replace(files[2].find("$$create_pin"), 0, known);
  const Findings findings = Set(files).Check();
  EXPECT_EQ(findings.CountOf(FindingCode::kUnknownPin), 150U);
  EXPECT_EQ(std::count_if(findings.list.begin(), findings.list.end(),
                          [](const Finding& finding) { return finding.code == FindingCode::kUnknownPin; }),
            100);
}

TEST(FindingsTest, SayWhatIsWrongInASentence) {
  const Findings findings =
      Set(Edited({{kNeutral, "U2-2", "U2-3"}, {kNeutral, "B_UNITS MM", "B_UNITS FOOT"}})).Check();
  ASSERT_EQ(findings.list.size(), 2U);
  EXPECT_EQ(findings.list[0].message, R"(net "VCC" has pin "U2-3", but geometry "G" has no such pin)");
  EXPECT_EQ(findings.list[1].message,
            R"(the Neutral file has the unknown unit "FOOT"; a unit is read as 1 mm)");
}

}  // namespace
}  // namespace kestrin
