#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "kestrin/neutral/neutral_reader.h"
#include "support/described.h"
#include "tests/support/feed.h"

namespace kestrin {
namespace {

using test::Described;
using test::Feed;

/// The models and the reader that fills them.
struct Import {
  CMComps components;
  CMNetList nets;
  BoardSelection selection;
  NeutralReader reader{components, nets, selection};
};

struct Case {
  const char* lines;
  const char* model;
};

TEST(NeutralReader, ReadsNetsAndPins) {
  const Case cases[] = {
      {"NET A", "net{name=A}"},
      {"NET 'VCC 3V3'", "net{name=[VCC 3V3]}"},
      {"NET 'A 'B'  '", "net{name=[A B]}"},
      {"NET '\tA\t '", "net{name=\tA}"},
      {"NET A B\nNET A\nNET", "net{name=A}"},
      {"   NET   A   ", "net{name=A}"},
      {"net A\nNETS A\n\tNET A\nNET\tA B", ""},
      {"NET A\nN_PIN U1-1 a b c d\nN_PIN 'U 1-12' a b c d e\nN_PIN R5-2-1 a b c d\nN_PIN X a b c d",
       "net{name=A pin{ref=U1 pin=1} pin{ref=U_1 pin=12} pin{ref=R5 pin=2-1} pin{pin=X}}"},
      {"NET A\nN_PIN -1 a b c d\nN_PIN 1- a b c d\nN_PIN '' a b c d",
       "net{name=A pin{pin=1} pin{ref=1} pin{}}"},
      {"NET A\nN_PIN U1-1 a b c\nN_PROP x y\nN_VIA 1 2\nNET B\nN_PIN U1-2 'a b' c d e",
       "net{name=A} net{name=B pin{ref=U1 pin=2}}"},
      {"N_PIN U1-1 a b c d\nNET A", "net{name=A}"},
      {"NET A\n###Nets\nN_PIN U1-1 a b c d\nNET B", "net{name=A}"},
  };
  for (const Case& c : cases) {
    Import import;
    Feed(import.reader, std::string("###Nets\n") + c.lines);
    EXPECT_EQ(Described(import.nets), c.model) << c.lines;
  }
}

TEST(NeutralReader, ReadsComponentsAndTheirProperties) {
  const Case cases[] = {
      {"COMP R1 'PN 1' S G 1.5 -2x 2 90.9", " info{data{R1 ['PN 1'] S G 1.5 -2 2 90}}"},
      {"  COMP R1 P S G a b c d ", " info{data{R1 P S G 0 0 0}}"},
      {"COMP R1 P S G 1 2 3\nCOMP R1 P S G 1 2 3 4 5\ncomp R1 P S G 1 2 3 4\nC_PROP (A,\"1\")", ""},
      {"COMP R P S G 1 2 3 4\nC_PIN x\nC_PROP (HEIGHT,\"2.5\") (VALUE , \"10 k\")",
       " info{data{R P S G 1 2 3 4} comment{name=HEIGHT value=2.5} comment{name=VALUE value=[10 k]}}"},
      {"COMP R P S G 1 2 3 4\nC_PROP (A,\"x\"y\"z\") (B,\"half) (C,\"1\")",
       " info{data{R P S G 1 2 3 4} comment{name=A value=x\"y\"z} comment{name=B value=[half) (C,\"1]}}"},
      {"COMP R P S G 1 2 3 4\nC_PROP (noquotes,1) (no comma \"v\") ((A,\"1\") tail, \"t\"",
       " info{data{R P S G 1 2 3 4} comment{name=noquotes} comment{value=v} comment{name=(A value=1} "
       "comment{name=tail value=t}}"},
      {"COMP R P S G 1 2 3 4\nC_PROP (\"A\",\"1\") (,\"2\") ()",
       " info{data{R P S G 1 2 3 4} comment{name=\"A\" value=A\",\"1} comment{value=2} comment{}}"},
      {"COMP R P S G 1 2 3 4\nC_PROP \nC_PROP\nC_PROP x)(A,\"1\")",
       " info{data{R P S G 1 2 3 4} comment{name=A value=1}}"},
      {"COMP R P S G 1 2 3 4\nCOMP Q P S G 1 2 3 4\n###Component\nC_PROP (A,\"1\")",
       " info{data{R P S G 1 2 3 4}} info{data{Q P S G 1 2 3 4}}"},
  };
  for (const Case& c : cases) {
    Import import;
    Feed(import.reader, std::string("###Component\n") + c.lines);
    EXPECT_EQ(Described(import.components), std::string("readFlag=1") + c.model) << c.lines;
  }
}

TEST(NeutralReader, GroupsReferenceLocationsByTen) {
  const auto numbered = [](int count) {
    std::string text;
    for (int i = 0; i < count; ++i) text += std::to_string(i) + ",";
    return text;
  };
  struct GroupCase {
    std::string value;
    std::string groups;
  };
  const GroupCase cases[] = {
      {"", " refLoc{}"},
      {"U1", " refLocFirst=U1 refLoc{}"},
      {"a,,b", " refLocFirst=a refLoc{}"},
      {"U1,1.5,2.5,3.9,@CC,5,6,7,e,n", " refLocFirst=U1 refLoc{1.5 2.5 3 @CC 5 6 7 e n}"},
      {numbered(11), " refLocFirst=0 refLoc{1 2 3 4 5 6 7 8 10}"},
      {numbered(12), " refLocFirst=0 refLoc{1 2 3 4 5 6 7 8 10} refLoc{11}"},
      {numbered(21), " refLocFirst=0 refLoc{1 2 3 4 5 6 7 8 10} refLoc{11 12 13 14 15 16 17 18 20}"},
      {numbered(22),
       " refLocFirst=0 refLoc{1 2 3 4 5 6 7 8 10} refLoc{11 12 13 14 15 16 17 18 20} refLoc{21}"},
      {numbered(40),
       " refLocFirst=0 refLoc{1 2 3 4 5 6 7 8 10} refLoc{11 12 13 14 15 16 17 18 20} refLoc{21 22 23 24 25 "
       "26 27 28 30}"},
  };
  for (const GroupCase& c : cases) {
    Import import;
    Feed(import.reader, "###Component\nCOMP R P S G 1 2 3 4\nC_PROP (REFLOC,\"" + c.value + "\")");
    EXPECT_EQ(Described(import.components), "readFlag=1 info{data{R P S G 1 2 3 4}" + c.groups + "}")
        << c.value;
  }
  Import import;
  Feed(import.reader,
       "###Component\nCOMP R P S G 1 2 3 4\nC_PROP (REFLOC,\"A,1\") (refloc,\"x\")\nC_PROP (REFLOC,\"B\")\n"
       "C_PROP (REFLOC,\"\")");
  EXPECT_EQ(Described(import.components),
            "readFlag=1 info{data{R P S G 1 2 3 4} refLocFirst=B refLoc{1} refLoc{} refLoc{} "
            "comment{name=refloc value=x}}");
}

TEST(NeutralReader, ReadsBoardAndPanel) {
  const Case cases[] = {
      {"", "readFlag=1"},
      {"B_UNITS MM", "units=MM readFlag=1"},
      {"B_UNITS MM\nB_UNITS 'IN CH'\nB_UNITS a b\nB_UNITS", "units=['IN CH'] readFlag=1"},
      {"###Board Information\nBOARD B r X:12.5 A:B:7 1 2", "readFlag=1 board3=(12.5 7)"},
      {"###Board Information\nBOARD B r 12.5 : 1 2\nHOLE 1\nB_ATTR 1", "readFlag=1 board3=(12.5)"},
      {"###Board Information\nBOARD B r 1 2 5", "readFlag=1"},
      {"BOARD B r 1 2 5 6", "readFlag=1"},
      {"###Board Information of old\n###Board Information\nBOARD B r 1 2 5 6", "readFlag=1"},
      {" ###Board Information\nBOARD B r 1 2 5 6", "readFlag=1"},
      {"P_ADDP 1 'A B' 3 4.5 5 6.9 7 8\nP_ADDP 1 A 3 4 5 6 7",
       "readFlag=1 panel{boardName=['A B'] 6=(6 7 8) 4=(4.5 5)}"},
  };
  for (const Case& c : cases) {
    Import import;
    Feed(import.reader, c.lines);
    EXPECT_EQ(Described(import.components), c.model) << c.lines;
  }
  EXPECT_EQ(test::InitialFieldsOf<CMComps>(), "");
  EXPECT_EQ(test::InitialFieldsOf<tagMCOMPDATA>(), "[] [] [] [] 0 0 1");
}

std::string Placement(const char* board, int value6) {
  return std::string("P_ADDP 1 ") + board + " 3 4 5 " + std::to_string(value6) + " 7 8\n";
}

TEST(NeutralReader, SelectsTheSectionsOfThePlacementThatQualifies) {
  const std::string board = "###Board Information\nBOARD B r 1 2 5 6\n";
  struct SelectionCase {
    std::string head;
    std::string net;
    std::int64_t placement;
  };
  const SelectionCase cases[] = {
      {"", "N1", -1},
      {board, "N1", -1},
      {Placement("B", 0), "N1", -1},
      {Placement("B", 2) + Placement("B", 2) + Placement("B", 0) + board, "N3", 2},
      {Placement("A", 0) + Placement("B", 5) + Placement("A", 0) + Placement("B", 1) + board, "N2", 3},
      {Placement("B", 2) + Placement("B", 16) + board, "N1", -1},
      {Placement("b", 0) + Placement("'B'", 0) + board, "N1", -1},
      {Placement("'B'", 2) + Placement("'B'", 0) + "###Board Information\nBOARD 'B' r 1 2 5 6\n", "N2", 1},
      {board + Placement("B", 2) + Placement("B", 0), "N1", -1},
      {board + Placement("B", 2) + Placement("B", 0) + "BOARD too few\n", "N2", 1},
      {Placement("B", 2) + Placement("B", 0) + "###Board Information\nBOARD B r 1 2 5\n", "N1", -1},
  };
  for (const SelectionCase& c : cases) {
    Import import;
    Feed(import.reader, c.head + "###Nets\nNET N1\n###Nets\nNET N2\n###Nets of the third\nNET N3\n");
    EXPECT_EQ(Described(import.nets), "net{name=" + c.net + "}") << c.head;
    EXPECT_EQ(import.selection.placement, c.placement) << c.head;
  }
  for (int value6 = -1; value6 <= 18; ++value6) {
    Import import;
    Feed(import.reader, Placement("B", value6) + board);
    const std::vector<int> setAside = {2, 3, 5, 8, 10, 11, 13, 16};
    const bool qualifies = std::find(setAside.begin(), setAside.end(), value6) == setAside.end();
    EXPECT_EQ(import.selection.placement, qualifies ? 0 : -1) << value6;
  }
}

TEST(NeutralReader, LooksUpTheNameOfTheBoardOnce) {
  Import import;
  Feed(import.reader, "###Board Information\nBOARD " + std::string(8'000'000, 'A') + " 2 3 4 5 6");
  for (int i = 0; i < 1'000'000; ++i) import.reader.ReadLine("BOARD x");  // each updates the selection
  EXPECT_EQ(import.selection.ordinal, 1);
}

TEST(NeutralReader, ReportsWhyALineIsSkipped) {
  struct OutcomeCase {
    const char* line;
    const char* reason;  // null if the line is not skipped
  };
  const OutcomeCase cases[] = {
      {"", nullptr},
      {" \t ", nullptr},
      {"# comment", nullptr},
      {"NET N", nullptr},
      {"HOLE", nullptr},
      {"gibberish", "unknown record"},
      {"gibberish 1 2", "unknown record"},
      {"B_UNITS", "no blank follows the keyword"},
      {"P_ADDP 1 2", "P_ADDP needs exactly 8 values, 2 found"},
      {"BOARD 1 2 3 4 5 6", nullptr},
      {"###Board Information", nullptr},
      {"BOARD 1 2 3 4 5", "BOARD needs exactly 6 values, 5 found"},
      {"###Nets", nullptr},
      {"N_PIN U1-1 1 2 3 4", "N_PIN needs a NET before it"},
      {"N_PIN U1-1 1 2 3", "N_PIN needs at least 5 values, 4 found"},
      {"###Component", nullptr},
      {"C_PROP (A,\"1\")", "C_PROP needs a COMP before it"},
      {"###Nets", nullptr},
      {"NET 1 2 3", nullptr},
  };
  Import import;
  for (const OutcomeCase& c : cases) {
    const LineOutcome outcome = import.reader.ReadLine(c.line);
    EXPECT_EQ(outcome.GetKind() == LineOutcome::Kind::kSkipped, c.reason != nullptr) << c.line;
    if (c.reason != nullptr) {
      EXPECT_EQ(outcome.Reason(), c.reason) << c.line;
    }
  }
}

TEST(NeutralReader, NearMissesBetweenRecordsChangeNothing) {
  const std::string nearMisses =
      "NET\nNET a b\nnet A x\n\tNET A\n ###Nets\n ###Component\n# ###Nets\n###Net\nCOMP 1 2\nP_ADDP 1 B\n"
      "N_PIN U-1 2 3\nCOMPONENT 1 2 3 4 5 6 7 8\nB_UNITS a b\nC_PROP\n";
  Import import;
  for (const std::string record :
       {"P_ADDP 1 B 3 4 5 2 7 8", "P_ADDP 1 B 3 4 5 1 7 8", "###Board Information", "BOARD B r X:1 Y:2 5 6",
        "###Nets", "###Nets", "NET A", "N_PIN U-1 1 2 3 4", "###Component", "###Component",
        "COMP R P S G 1 2 3 4", "C_PROP (A,\"1\") (REFLOC,\"R,1\")"}) {
    const auto outcomes = Feed(import.reader, nearMisses + record);
    EXPECT_EQ(std::count(outcomes.begin(), outcomes.end() - 1, LineOutcome::Imported()), 0) << record;
  }
  EXPECT_EQ(Described(import.nets), "net{name=A pin{ref=U pin=1}}");
  EXPECT_EQ(
      Described(import.components),
      "readFlag=1 board3=(1 2) info{data{R P S G 1 2 3 4} refLocFirst=R refLoc{1} comment{name=A value=1}} "
      "panel{boardName=B 6=(2 7 8) 4=(4 5)} panel{boardName=B 6=(1 7 8) 4=(4 5)}");
}

}  // namespace
}  // namespace kestrin
