#include <gtest/gtest.h>

#include <algorithm>
#include <sstream>
#include <string>
#include <vector>

#include "kestrin/neutral/neutral_reader.h"
#include "tests/support/feed.h"

namespace kestrin {
namespace {

using test::Feed;

/// The models and the reader that fills them.
struct Import {
  CMComps components;
  CMNetList nets;
  BoardSelection selection;
  NeutralReader reader{components, nets, selection};
};

std::string Nets(const CMNetList& list) {
  std::ostringstream text;
  for (const CMNetInfo* net : *list.m_pNets) {
    text << net->m_sName << '{';
    for (const CMRefPin* pin : *net->m_pPins) text << pin->m_sRef << '|' << pin->m_sPin << ';';
    text << '}';
  }
  return text.str();
}

std::string Components(const CMComps& components) {
  std::ostringstream text;
  for (const CMCompsInfo* info : *components.m_pInfos) {
    const tagMCOMPDATA& d = info->m_Data;
    text << d.m_sValue1 << ' ' << d.m_sValue2 << ' ' << d.m_sValue3 << ' ' << d.m_sValue4 << ' '
         << d.m_dValue5 << ' ' << d.m_dValue6 << ' ' << d.m_nValue7 << ' ' << d.m_nValue8 << '{';
    for (const tagMCOMPCOMMENT* comment : *info->m_pComments)
      text << comment->m_sName << '=' << comment->m_sValue << ';';
    text << info->m_sRefLocFirst;
    for (const CMCompsRefLoc* g : *info->m_pRefLocs) {
      text << '[' << g->m_dValue1 << ' ' << g->m_dValue2 << ' ' << g->m_nValue3 << ' ' << g->m_sValue4 << ' '
           << g->m_dValue5 << ' ' << g->m_dValue6 << ' ' << g->m_dValue7 << ' ' << g->m_sValue8 << ' '
           << g->m_sValue9 << ']';
    }
    text << '}';
  }
  return text.str();
}

std::string Board(const CMComps& components) {
  std::ostringstream text;
  text << components.m_sUnits << ' ' << components.m_dBoardValue3 << ' ' << components.m_dBoardValue4;
  for (const CMCompsPanel* p : *components.m_pPanels) {
    text << '(' << p->m_sBoardName << ' ' << p->m_dValue4 << ' ' << p->m_dValue5 << ' ' << p->m_nValue6 << ' '
         << p->m_nValue7 << ' ' << p->m_nValue8 << ')';
  }
  return text.str();
}

struct Case {
  const char* lines;
  const char* model;
};

TEST(NeutralReader, ReadsNetsAndPins) {
  const Case cases[] = {
      {"NET A", "A{}"},
      {"NET 'VCC 3V3'", "VCC 3V3{}"},
      {"NET 'A 'B'  '", "A B{}"},
      {"NET '\tA\t '", "\tA{}"},
      {"NET A B\nNET A\nNET", "A{}"},
      {"   NET   A   ", "A{}"},
      {"net A\nNETS A\n\tNET A\nNET\tA B", ""},
      {"NET A\nN_PIN U1-1 a b c d\nN_PIN 'U 1-12' a b c d e\nN_PIN R5-2-1 a b c d\nN_PIN X a b c d",
       "A{U1|1;U_1|12;R5|2-1;|X;}"},
      {"NET A\nN_PIN -1 a b c d\nN_PIN 1- a b c d\nN_PIN '' a b c d", "A{|1;1|;|;}"},
      {"NET A\nN_PIN U1-1 a b c\nN_PROP x y\nN_VIA 1 2\nNET B\nN_PIN U1-2 'a b' c d e", "A{}B{U1|2;}"},
      {"N_PIN U1-1 a b c d\nNET A", "A{}"},
      {"NET A\n###Nets\nN_PIN U1-1 a b c d\nNET B", "A{}"},
  };
  for (const Case& c : cases) {
    Import import;
    Feed(import.reader, std::string("###Nets\n") + c.lines);
    EXPECT_EQ(Nets(import.nets), c.model) << c.lines;
  }
}

TEST(NeutralReader, ReadsComponentsAndTheirProperties) {
  const Case cases[] = {
      {"COMP R1 'PN 1' S G 1.5 -2x 2 90.9", "R1 'PN 1' S G 1.5 -2 2 90{}"},
      {"  COMP R1 P S G a b c d ", "R1 P S G 0 0 0 0{}"},
      {"COMP R1 P S G 1 2 3\nCOMP R1 P S G 1 2 3 4 5\ncomp R1 P S G 1 2 3 4\nC_PROP (A,\"1\")", ""},
      {"COMP R P S G 1 2 3 4\nC_PIN x\nC_PROP (HEIGHT,\"2.5\") (VALUE , \"10 k\")",
       "R P S G 1 2 3 4{HEIGHT=2.5;VALUE=10 k;}"},
      {"COMP R P S G 1 2 3 4\nC_PROP (A,\"x\"y\"z\") (B,\"half) (C,\"1\")",
       "R P S G 1 2 3 4{A=x\"y\"z;B=half) (C,\"1;}"},
      {"COMP R P S G 1 2 3 4\nC_PROP (noquotes,1) (no comma \"v\") ((A,\"1\") tail, \"t\"",
       "R P S G 1 2 3 4{noquotes=;=v;(A=1;tail=t;}"},
      {"COMP R P S G 1 2 3 4\nC_PROP (\"A\",\"1\") (,\"2\") ()", "R P S G 1 2 3 4{\"A\"=A\",\"1;=2;=;}"},
      {"COMP R P S G 1 2 3 4\nC_PROP \nC_PROP\nC_PROP x)(A,\"1\")", "R P S G 1 2 3 4{A=1;}"},
      {"COMP R P S G 1 2 3 4\nCOMP Q P S G 1 2 3 4\n###Component\nC_PROP (A,\"1\")",
       "R P S G 1 2 3 4{}Q P S G 1 2 3 4{}"},
  };
  for (const Case& c : cases) {
    Import import;
    Feed(import.reader, std::string("###Component\n") + c.lines);
    EXPECT_EQ(Components(import.components), c.model) << c.lines;
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
    const char* groups;
  };
  const GroupCase cases[] = {
      {"", "[0 0 0  0 0 0  ]"},
      {"U1", "U1[0 0 0  0 0 0  ]"},
      {"a,,b", "a[0 0 0  0 0 0  ]"},
      {"U1,1.5,2.5,3.9,@CC,5,6,7,e,n", "U1[1.5 2.5 3 @CC 5 6 7 e n]"},
      {numbered(11), "0[1 2 3 4 5 6 7 8 10]"},
      {numbered(12), "0[1 2 3 4 5 6 7 8 10][11 0 0  0 0 0  ]"},
      {numbered(21), "0[1 2 3 4 5 6 7 8 10][11 12 13 14 15 16 17 18 20]"},
      {numbered(22), "0[1 2 3 4 5 6 7 8 10][11 12 13 14 15 16 17 18 20][21 0 0  0 0 0  ]"},
      {numbered(40), "0[1 2 3 4 5 6 7 8 10][11 12 13 14 15 16 17 18 20][21 22 23 24 25 26 27 28 30]"},
  };
  for (const GroupCase& c : cases) {
    Import import;
    Feed(import.reader, "###Component\nCOMP R P S G 1 2 3 4\nC_PROP (REFLOC,\"" + c.value + "\")");
    EXPECT_EQ(Components(import.components), std::string("R P S G 1 2 3 4{") + c.groups + "}") << c.value;
  }
  Import import;
  Feed(import.reader,
       "###Component\nCOMP R P S G 1 2 3 4\nC_PROP (REFLOC,\"A,1\") (refloc,\"x\")\nC_PROP (REFLOC,\"B\")\n"
       "C_PROP (REFLOC,\"\")");
  EXPECT_EQ(Components(import.components),
            "R P S G 1 2 3 4{refloc=x;B[1 0 0  0 0 0  ][0 0 0  0 0 0  ][0 0 0  0 0 0  ]}");
}

TEST(NeutralReader, ReadsBoardAndPanel) {
  const Case cases[] = {
      {"", " 0 0"},
      {"B_UNITS MM", "MM 0 0"},
      {"B_UNITS MM\nB_UNITS 'IN CH'\nB_UNITS a b\nB_UNITS", "'IN CH' 0 0"},
      {"###Board Information\nBOARD B r X:12.5 A:B:7 1 2", " 12.5 7"},
      {"###Board Information\nBOARD B r 12.5 : 1 2\nHOLE 1\nB_ATTR 1", " 12.5 0"},
      {"###Board Information\nBOARD B r 1 2 5", " 0 0"},
      {"BOARD B r 1 2 5 6", " 0 0"},
      {"###Board Information of old\n###Board Information\nBOARD B r 1 2 5 6", " 0 0"},
      {" ###Board Information\nBOARD B r 1 2 5 6", " 0 0"},
      {"P_ADDP 1 'A B' 3 4.5 5 6.9 7 8\nP_ADDP 1 A 3 4 5 6 7", " 0 0('A B' 4.5 5 6 7 8)"},
  };
  for (const Case& c : cases) {
    Import import;
    Feed(import.reader, c.lines);
    EXPECT_EQ(Board(import.components), c.model) << c.lines;
  }
  EXPECT_EQ(Import().components.m_nReadFlag, 1);
  EXPECT_EQ(CMComps().m_nReadFlag, 0);
  EXPECT_EQ(tagMCOMPDATA().m_nValue7, 1);
}

std::string Placement(const char* board, int value6) {
  return std::string("P_ADDP 1 ") + board + " 3 4 5 " + std::to_string(value6) + " 7 8\n";
}

TEST(NeutralReader, SelectsTheSectionsOfThePlacementThatQualifies) {
  const std::string board = "###Board Information\nBOARD B r 1 2 5 6\n";
  struct SelectionCase {
    std::string head;
    const char* net;
    std::int64_t placement;
  };
  const SelectionCase cases[] = {
      {"", "N1{}", -1},
      {board, "N1{}", -1},
      {Placement("B", 0), "N1{}", -1},
      {Placement("B", 2) + Placement("B", 2) + Placement("B", 0) + board, "N3{}", 2},
      {Placement("A", 0) + Placement("B", 5) + Placement("A", 0) + Placement("B", 1) + board, "N2{}", 3},
      {Placement("B", 2) + Placement("B", 16) + board, "N1{}", -1},
      {Placement("b", 0) + Placement("'B'", 0) + board, "N1{}", -1},
      {Placement("'B'", 2) + Placement("'B'", 0) + "###Board Information\nBOARD 'B' r 1 2 5 6\n", "N2{}", 1},
      {board + Placement("B", 2) + Placement("B", 0), "N1{}", -1},
      {board + Placement("B", 2) + Placement("B", 0) + "BOARD too few\n", "N2{}", 1},
      {Placement("B", 2) + Placement("B", 0) + "###Board Information\nBOARD B r 1 2 5\n", "N1{}", -1},
  };
  for (const SelectionCase& c : cases) {
    Import import;
    Feed(import.reader, c.head + "###Nets\nNET N1\n###Nets\nNET N2\n###Nets of the third\nNET N3\n");
    EXPECT_EQ(Nets(import.nets), c.net) << c.head;
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

TEST(NeutralReader, TheNameOfTheBoardIsLookedUpOnce) {
  Import import;
  Feed(import.reader, "###Board Information\nBOARD " + std::string(8'000'000, 'A') + " 2 3 4 5 6");
  for (int i = 0; i < 1'000'000; ++i) import.reader.ReadLine("BOARD x");  // each of which selects anew
  EXPECT_EQ(import.selection.ordinal, 1);
}

TEST(NeutralReader, SaysWhyALineIsSkipped) {
  struct OutcomeCase {
    const char* line;
    const char* reason;  // null for a line that is not skipped
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
  EXPECT_EQ(Nets(import.nets), "A{U|1;}");
  EXPECT_EQ(Components(import.components), "R P S G 1 2 3 4{A=1;R[1 0 0  0 0 0  ]}");
  EXPECT_EQ(Board(import.components), " 1 2(B 4 5 2 7 8)(B 4 5 1 7 8)");
}

}  // namespace
}  // namespace kestrin
