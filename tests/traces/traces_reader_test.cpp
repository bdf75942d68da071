#include "kestrin/traces/traces_reader.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/described.h"
#include "tests/support/feed.h"

namespace kestrin {
namespace {

using test::Described;
using test::Feed;

struct Case {
  std::string text;
  std::string model;
};

void Expect(const std::vector<Case>& cases) {
  for (const Case& c : cases) {
    CMTraces traces;
    TracesReader reader(traces);
    Feed(reader, c.text);
    EXPECT_EQ(Described(traces), c.model) << c.text;
  }
}

TEST(TracesModel, BeginsWithNoWidthInItsSegments) {
  EXPECT_EQ(test::InitialFieldsOf<CMTracesSEG>(), "4=-1");
  EXPECT_EQ(test::InitialFieldsOf<CMTraces>(), "");
}

TEST(TracesReader, ReadsBoardWideRecords) {
  Expect({
      {"UNITS MM", "units=MM"},
      {"UNITS MM\nUNITS 'IN CH' x", "units=['IN CH']"},
      {"ST 1.5 2.5 3.9 4", "st=(1.5 2.5 3 4)"},
      {"ST 1 2 3 4 5", ""},
      {"ST 1.9 2 3 4 5 6", "stLong=(1 2 3 4 5 6 -1 -1)"},
      {"ST 1 2 3 4 5 6 7", ""},
      {"ST 1 2 3 4\nST 7 6 5 4 3 2 1 0\nST 9 2 3 4 5 6 7 8 9", "st=(1 2 3 4) stLong=(7 6 5 4 3 2 -1 -1)"},
      {"XRF 3 U_1 EXTRA", "xrf{3 U_1 U_1}"},
      {"TET 1 'P 1' 3 4.5 -5e1 6\nTET x P 3 4 5", "tet{1 ['P 1'] 3 4.5 -50} tet{0 P 3 4 5}"},
      {"TTT 1 2.5 3 4 5\n TTT  9 8 7 6 5 4", "ttt{1 2.5 3 4 5} ttt{9 8 7 6 5}"},
      {"VERX 1 2\nver 1 2\n\tUNITS MM\n#NET 'A'\n# NETS 'A'\n# UNITS MM", ""},
  });
}

TEST(TracesReader, ReadsTheRecordsOfANet) {
  Expect({
      {"# NET 'A B' x", "net{name=[A B]}"},
      {"# NET ''A'B'\n#  NET A\n# NET ''", "net{name=A'B} net{name=A} net{}"},
      {"# NET A\nWIR 1.9 2 3.5 4 5e0 6", "net{name=A wir{1 2 3.5 4 5}}"},
      {"# NET A\nWIR 1 2 3 4", "net{name=A wir{}}"},
      {"# NET A\nINC 1 2.5 3 4 5 6 -7.9", "net{name=A inc{1 2.5 3 4 5 6 -7}}"},
      {"# NET A\nINC 1 2 3 4 5 6 9e99\nSEG 1", "net{name=A inc{1 2 3 4 5 6 2147483647 seg{1}}}"},
      {"# NET A\nINC 1 2 3 4 5 6\nINC 1 2 3 4 5 6 7 8", "net{name=A}"},
      {"# NET A\nANT 1 2 3 4 5", "net{name=A antWir{1 2 3 4 5}}"},
      {"# NET A\nANT 1 2 3 4 5 6 7", "net{name=A antInc{1 2 3 4 5 6 7}}"},
      {"# NET A\nANT 1 2 3 4\nANT 1 2 3 4 5 6\nANT 1 2 3 4 5 6 7 8", "net{name=A}"},
      {"# NET A\nGUI 1 2 3 4 5 6 7\nCHG 1.5 2.5 3.5 4.5 5.5 6.5",
       "net{name=A gui{1 2 3 4 5 6} chg{1.5 2.5 3 4.5 5.5 6}}"},
  });
}

TEST(TracesReader, ReadsAsManySegmentValuesAsTheLineHas) {
  const auto segment = [](const std::string& values, const std::string& record) {
    return Case{"# NET A\nWIR 1 2 3 4 5\nSEG " + values, "net{name=A wir{1 2 3 4 5 seg{" + record + "}}}"};
  };
  Expect({
      segment("1.5 2.5 3 12 X", "1.5 2.5 3 [] X 4=12"),
      segment("1.5 2.5 3 12.5 X Y Z", "1.5 2.5 3 12.5 X"),
      segment("1 2 3 0012", "1 2 3 4=12"),
      segment("1 2 3 -1", "1 2 3 -1"),
      segment("1 2 3 '12' 'A B'", "1 2 3 '12' ['A B']"),
      segment("1 2", "1 2"),
      segment("1", "1"),
  });
}

TEST(TracesReader, ReadsTheRecordsOfAFill) {
  Expect({
      {"FIL 'A' 'B C' 'S' 4 5 6 7 8 9.5 10 11 12 13 T1 'T2' 16",
       "fil{name=(A [B C]) 3=('S' 4 5 6 7 8 9.5 10 11 12) tail=(T1 'T2' 16)}"},
      {"FIL A B S 4 5 6 7 8 9 10 11 12 13 14.5 15 16.5 17.5 18 T1 T2 T3",
       "fil{name=(A B) 3=(S 4 5 6 7 8 9 10 11 12) tail=(T1 T2 T3) ext=(14 15 16.5 17.5)}"},
      {"FIL 1\nVER 1 2", "fil{ver{x=1 y=2}}"},
      {"FIL 1\nARE 'A' B S 4 5.5 6\nVER 1 2.5 3\nARS 1\nVER 3 4",
       "fil{are{name=(A B) 3=(S 4 5.5 6) ver{x=1 y=2.5}} ars{ver{x=3 y=4}}}"},
      {"FIL 1\nARE A 'B' S 4 5 6 7 8\nARS A B S 4 5 6 7 8 9 10.5 11.5 12 13",
       "fil{are{name=(A B) 3=(S 4 5 6) lastValue=8} ars{name=(A B) 3=(S 4 5 6) lastValue=13 8=(8 9 10.5 "
       "11.5)}}"},
      {"FIL 1\nISL 1.9 2\nVER 1 2\nISS 3\nVER 3 4", "fil{isl{1 ver{x=1 y=2}} iss{3 ver{x=3 y=4}}}"},
      {"ARE A B S 4 5.5 6\nARE C D S 4 7 6\nTTI 1 2 'X Y'\nTTI 1 2 3 4.5 5.5 6.5 7\nTTI 1 2 3 4\nTTI 1 2",
       "fil{name=(A B) 3=([] 0 0 0 1 0 5.5) are{name=(A B) 3=(S 4 5.5 6)} are{name=(C D) 3=(S 4 7 6)} "
       "tti{name=(A B) 1 2 ['X Y']} tti{name=(A B) 1 2 3 4 5.5 6.5 7}}"},
      {"ARS 1", "fil{3=([] 0 0 0 1) ars{}}"},
  });
}

/// A line with a number of values: "code 1 2 3 …".
std::string Counted(const std::string& code, int count) {
  std::string line = code;
  for (int i = 1; i <= count; ++i) line += " " + std::to_string(i);
  return line;
}

TEST(TracesReader, OtherFormsOfFillsAndAreasAreEmpty) {
  for (int count = 1; count <= 23; ++count) {
    CMTraces traces;
    TracesReader reader(traces);
    Feed(reader, Counted("FIL", count) + "\n" + Counted("ARE", count) + "\n" + Counted("ARS", count));
    ASSERT_EQ(traces.m_pFilArray->GetSize(), 1) << count;
    const CMTracesFIL& fill = *traces.m_pFilArray->GetAt(0);
    EXPECT_EQ(fill.m_sName1, count == 16 || count == 21 ? "1" : "") << count;
    EXPECT_EQ(fill.m_nExt1, count == 21 ? 14 : 0) << count;
    const char* name = count == 6 || count == 8 || count == 13 ? "2" : "";
    EXPECT_EQ(fill.m_pAreArray->GetAt(0)->m_sName2, name) << count;
    EXPECT_EQ(fill.m_pArsArray->GetAt(0)->m_sName2, name) << count;
  }
}

TEST(TracesReader, AnExponentCountsInDoublesOnly) {
  CMTraces traces;
  TracesReader reader(traces);
  Feed(reader,
       "# NET A\nINC 1e3 2 3 1e3 5 6 -1e3\nSEG 1e3 2 1e3\nFIL A B S 1e3 5 6 7 8 1e3 10 11 12 13 14 15 16");
  const CMTracesINCANT& inc = *traces.m_pNetArray->GetAt(0)->m_pIncArray->GetAt(0);
  EXPECT_EQ(inc.m_nValue1, 1);
  EXPECT_EQ(inc.m_nValue4, 1);
  EXPECT_EQ(inc.m_nValue7, -1000);
  EXPECT_EQ(inc.m_pSegArray->GetAt(0)->m_dValue1, 1000);
  EXPECT_EQ(inc.m_pSegArray->GetAt(0)->m_nValue3, 1);
  EXPECT_EQ(traces.m_pFilArray->GetAt(0)->m_nValue4, 1);
  EXPECT_EQ(traces.m_pFilArray->GetAt(0)->m_dValue9, 1000);
}

TEST(TracesReader, ANetHeaderClosesTheFillAndNothingElse) {
  CMTraces traces;
  TracesReader reader(traces);
  const auto outcomes = Feed(reader,
                             "# NET A\nWIR 1 2 3 4 5\nSEG 1 0\nWIR 1\nANT 1 2 3 4 5 6\nSEG 2 0\n"
                             "FIL 1\nVER 1 0\n# NET A\nSEG 3 0\nVER 2 0\n"
                             "ISL 1\nISS 1\nTTI 1 2 3\nVER 3 0\nARE 6\nISL 1\nFIL 2\nISL 2");
  EXPECT_EQ(traces.m_pNetArray->GetSize(), 2);
  const CMTracesNET& first = *traces.m_pNetArray->GetAt(0);
  ASSERT_EQ(first.m_pWirArray->GetSize(), 2);
  EXPECT_EQ(first.m_pWirArray->GetAt(0)->m_pSegArray->GetSize(), 3);
  EXPECT_EQ(first.m_pWirArray->GetAt(1)->m_pSegArray->GetSize(), 0);
  ASSERT_EQ(traces.m_pFilArray->GetSize(), 3);
  EXPECT_EQ(traces.m_pFilArray->GetAt(0)->m_pVerArray->GetSize(), 3);
  EXPECT_EQ(traces.m_pFilArray->GetAt(0)->m_pIslArray->GetSize(), 0);
  EXPECT_EQ(traces.m_pFilArray->GetAt(1)->m_pIslArray->GetSize(), 1);
  EXPECT_EQ(traces.m_pFilArray->GetAt(2)->m_pIslArray->GetSize(), 1);
  for (std::size_t i = 11; i <= 13; ++i) EXPECT_EQ(outcomes[i].Code(), SkipCode::kNoOwner);
}

TEST(TracesReader, QuotesStayOpenFromLineToLine) {
  Expect({
      {"# NET 'A B\nTTT 1 2 3 4 5\nx' TTT 1 2 3 4 5\nTTT 1 2 3 4 5", "ttt{1 2 3 4 5} net{name=[A B]}"},
      {"# it's\nUNITS IN\n  'UNITS' IN\n'\nUNITS MM", "units=MM"},
      {"XRF 1 'a  'b' c'd\nXRF 2 ''", "xrf{1 ['a  'b' c'd] ['a  'b' c'd]} xrf{2 '' ''}"},
  });
}

TEST(TracesReader, ALineTooShortForItsRecordRaisesAndChangesNothing) {
  const std::string before = "# NET A\nWIR 1 2 3 4 5\nFIL 1\n";
  for (const char* line :
       {"XRF 1", "CHG 1 2 3 4 5", "GUI 1 2 3 4 5", "TET 1 2 3 4", "TTT 1 2 3 4", "VER 1", "# NET"}) {
    CMTraces expected;
    TracesReader complete(expected);
    Feed(complete, before + "SEG 1 2\nVER 1 2\nISL 1");
    CMTraces traces;
    TracesReader reader(traces);
    EXPECT_THROW(reader.ReadLine(line), CInvalidArgException) << line;  // even without an owner
    Feed(reader, before);
    EXPECT_THROW(reader.ReadLine(line), CInvalidArgException) << line;
    Feed(reader, "SEG 1 2\nVER 1 2\nISL 1");
    EXPECT_EQ(Described(traces), Described(expected)) << line;
  }
}

std::string OpenedBy(int line) {
  return "the line begins inside the apostrophe opened on line " + std::to_string(line);
}

TEST(TracesReader, ReportsTheOutcomeOfALine) {
  const std::string unknown(TextOf(SkipCode::kUnknownRecord).text);
  const Case cases[] = {
      {"UNITS MM", "imported"},
      {"FIL 1 2", "imported"},
      {"", "ignored"},
      {" \t ", "ignored"},
      {"# a comment", "ignored"},
      {"#", "ignored"},
      {"#comment", "ignored"},
      {"(a note)", "ignored"},
      {"PRP a property", "ignored"},
      {"#NET 'A'", unknown},
      {"\t# \tNET 'A'", unknown},
      {"# NETWORK of A", "ignored"},
      {"(a note) VER 1 2", unknown},
      {"WIRE 1 2", unknown},
      {"ST 1 2 3 4 5", "ST needs 4, 6 or 8 values, 5 found"},
      {"VER", "VER needs at least 2 values, 0 found"},
      {"FIL", "FIL needs at least 1 value, 0 found"},
      {"ST ", "ST needs 4, 6 or 8 values, 0 found"},
      {"INC", "INC needs exactly 7 values, 0 found"},
      {"TTI", "TTI needs 3 or 7 values, 0 found"},
      {"TTI 1 2", "TTI needs 3 or 7 values, 2 found"},
      {"VER 1 2", "VER needs a FIL, ARE, ARS, ISL or ISS before it"},
      {"SEG 1", "SEG needs a WIR of at least 5 values, an INC or an ANT before it"},
      {"WIR 1", "WIR needs a net header before it"},
      {"WIR 1 2 3 4 5", "WIR needs a net header before it"},
      {"ANT 1 2 3 4 5", "ANT needs a net header before it"},
      {"INC 1 2 3 4 5 6 7", "INC needs a net header before it"},
      {"GUI 1 2 3 4 5 6", "GUI needs a net header before it"},
      {"ISS 1", "ISS needs a FIL, ARE or ARS before it and after the last net header"},
      {"#'\nUNITS MM", OpenedBy(1)},
      {"\n# don't\n''\n'\n'\n# NET 'A", OpenedBy(5)},
      {"#'\n# NET 'A'", OpenedBy(1)},
      {"#'\nUNITS", OpenedBy(1)},
      {"#'\n", "ignored"},
  };
  for (const Case& c : cases) {
    CMTraces traces;
    TracesReader reader(traces);
    const LineOutcome outcome = Feed(reader, c.text + "\n").back();
    EXPECT_EQ(test::DescriptionOf(outcome), c.model) << c.text;
  }
}

}  // namespace
}  // namespace kestrin
