#include "kestrin/traces/strict/strict_parser.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "kestrin/traces/traces_reader.h"
#include "support/generators/generators.h"
#include "support/source_of.h"
#include "tests/support/content_of.h"
#include "tests/support/feed.h"
#include "tests/traces/described_traces.h"

namespace kestrin {
namespace {

using test::Described;
using test::SourceOf;

const std::string kBegin = "# Application x\nUNITS MM\nST 1 2 3 4\nXRF 1 U_1\n";
const std::string kBeginModel = "UNITS [MM] ST 1 2 3 4 xrf{XRF 1 [U_1] [U_1] 0}";

struct Case {
  std::string text;
  std::string model;
};

void ExpectAccepted(const std::string& text, const std::string& model) {
  const StrictParse parse = ParseStrictly(SourceOf(text));
  EXPECT_EQ(parse.result, ParseResult::kAccepted) << text;
  EXPECT_TRUE(parse.errors.empty()) << text << parse.errors[0].Describe();
  EXPECT_EQ(parse.error, "") << text;
  ASSERT_NE(parse.traces, nullptr) << text;
  EXPECT_EQ(Described(*parse.traces), model) << text;
}

/// Records behind the beginning of a file.
void ExpectRecords(const std::vector<Case>& cases) {
  for (const Case& c : cases) ExpectAccepted(kBegin + c.text, kBeginModel + c.model);
}

TEST(StrictParser, AcceptsTheFormsOfAFile) {
  ExpectAccepted(kBegin, kBeginModel);
  ExpectAccepted(kBegin + "ST 5 6 7 8 9 10\n",
                 "UNITS [MM] ST 1 2 3 4 STLONG 5 6 7 8 9 10 -1 -1 xrf{XRF 1 [U_1] [U_1] 0}");
  ExpectAccepted("UNITS IN ST 1.5 2.5 3 4 XRF 1 A_1 XRF 2 A_2 ST 2 3 4 5",
                 "UNITS [IN] ST 2 3 4 5 xrf{XRF 1 [A_1] [A_1] 0; XRF 2 [A_2] [A_2] 0}");
  ExpectAccepted("UNITS IN\nST 1 2 3 4 5 6 7 8\nXRF 1 A_1\nST 9.5 8.5 7 6\n",
                 "UNITS [IN] ST 9.5 8.5 7 6 STLONG 1 2 3 4 5 6 -1 -1 xrf{XRF 1 [A_1] [A_1] 0}");
}

TEST(StrictParser, AcceptsBoardWideRecords) {
  ExpectRecords({
      {"TTT 1 2 3 4 5\nTTT 1 2.5 3 4 5", " ttt{TTT 1 2 3 4 5; TTT 1 2.5 3 4 5}"},
      {"TET 1 A 2 3.5 4.5\nTET 1 $A 2.5 3.5 4.5\nTET 1 A 2 3 4",
       " tet{TET 1 [A] 2 3.5 4.5; TET 1 [$A] 2.5 3.5 4.5; TET 1 [A] 2 3 4}"},
      {"TTT 99999999999 99999999999 3 4 5", " ttt{TTT 2147483647 2.14748e+09 3 4 5}"},
  });
}

TEST(StrictParser, AcceptsTheRecordsOfANet) {
  const std::string wire = " 1 2 3 4 5\nSEG 1 2 3 4\n";
  const std::string realWire = " 1 2.5 3.5 4.5 5.5\nSEG 1 2 3 4\n";
  const std::string open = " 1 2 3 4 5 6 7\nSEG 1 2 3 4\n";
  const std::string realOpen = " 1 2.5 3.5 4 5.5 6.5 7\nSEG 1 2 3 4\n";
  const std::string six = " 1 2 3 4 5 6\n";
  const std::string realSix = " 1.5 2.5 3 4.5 5.5 6\n";
  const std::string seg = " seg{SEG 1 2 3 [] [] 4}";
  const std::string wires = "{5 1 2 3 4 5" + seg + "; 5 1 2.5 3.5 4.5 5.5" + seg + "}";
  const std::string opens = "{7 1 2 3 4 5 6 7" + seg + "; 7 1 2.5 3.5 4 5.5 6.5 7" + seg + "}";
  const std::string sixes = "{6 1 2 3 4 5 6; 6 1.5 2.5 3 4.5 5.5 6}";
  ExpectRecords({
      {"# NET 'A B'\n# NET 'C'", " net{NET [A B]; NET [C]}"},
      {"# NET 'A'\nWIR" + wire + "WIR" + realWire, " net{NET [A] wir" + wires + "}"},
      {"# NET 'A'\nINC" + open + "INC" + realOpen, " net{NET [A] inc" + opens + "}"},
      {"# NET 'A'\nANT" + wire + "ANT" + realWire, " net{NET [A] ant5" + wires + "}"},
      {"# NET 'A'\nANT" + open + "ANT" + realOpen, " net{NET [A] ant7" + opens + "}"},
      {"# NET 'A'\nGUI" + six + "GUI" + realSix + "CHG" + six + "CHG" + realSix,
       " net{NET [A] gui" + sixes + " chg" + sixes + "}"},
      {"# NET 'A'\nWIR 1 2 3 4 5\nSEG 1.5 2.5 3.9 0012\nSEG 1 2 9e99 12.5 X\nSEG x 1x 3 -1 X Y",
       " net{NET [A] wir{5 1 2 3 4 5 seg{SEG 1.5 2.5 3 [] [] 12; SEG 1 2 2147483647 [12.5] [X] -1; "
       "SEG 0 1 3 [-1] [X] -1}}}"},
  });
}

const std::string kFil = "FIL 'A' 'B' S 4 5 6 7 8 ";
const std::string kFill = kFil + "9 10 11 12 T A B C\nVER 1 2\n";
const std::string kFillModel = "FIL [A] [B] [S] 4 5 6 7 8 9 10 11 12 [A] [B] [C] 0 0 0 0 ver{VER 1 2}";

TEST(StrictParser, AcceptsFillHeaders) {
  std::vector<Case> cases;
  for (unsigned form = 0; form < 32;
       ++form) {  // value 9, no extension or one of two, and each item of the tail
    const auto pick = [form](unsigned bit, const char* one, const char* other) {
      return std::string((form >> bit) % 2 == 0 ? one : other);
    };
    const std::string extensions[] = {"", "E 14 15 16 17 ", "E 14.9 -15.9 16.5 17.5 "};
    const std::string extended[] = {"0 0 0 0", "14 15 16 17", "14 -15 16.5 17.5"};
    for (unsigned extension = 0; extension < 3; ++extension) {
      cases.push_back({kFil + pick(3, "9", "9.5") + " 10 11 12 " + extensions[extension] + "T " +
                           pick(0, "A", "0012") + " " + pick(1, "B", "-7") + " " + pick(2, "C", "0") +
                           pick(4, "\nVER 1 2", " VER 1.5 2.5"),
                       " fil{FIL [A] [B] [S] 4 5 6 7 8 " + pick(3, "9", "9.5") + " 10 11 12 [" +
                           pick(0, "A", "12") + "] [" + pick(1, "B", "-7") + "] [" + pick(2, "C", "0") +
                           "] " + extended[extension] + " ver{VER " + pick(4, "1 2", "1.5 2.5") + "}}"});
    }
  }
  ExpectRecords(cases);
  ExpectRecords(
      {{"FIL 'A b' '$' $ 4 5 6 7 8 9 10 11 12 T $A B C VER 1 2 VER 3 4",
        " fil{FIL [A b] [$] [$] 4 5 6 7 8 9 10 11 12 [$A] [B] [C] 0 0 0 0 ver{VER 1 2; VER 3 4}}"}});
}

TEST(StrictParser, AcceptsTheRecordsOfAFill) {
  std::string records;
  std::string areas;
  const Case tails[] = {
      {"5 6", "5 6 0 0 0 0 0"},
      {"5.5 6", "5.5 6 0 0 0 0 0"},
      {"5 6 W 8", "5 6 8 0 0 0 0"},
      {"5.5 6 W 8", "5.5 6 8 0 0 0 0"},
      {"5 6 W 8 9 10 11 X 13", "5 6 13 8 9 10 11"},
      {"5.5 6 W 8.9 -9.9 10.5 11.5 X 13", "5.5 6 13 8 -9 10.5 11.5"},
  };
  for (const Case& tail : tails) {
    records += " A 'B' S 4 " + tail.text + "\nVER 1 2\n";
    areas +=
        (areas.empty() ? "{AREA [A] [B] [S] 4 " : "; AREA [A] [B] [S] 4 ") + tail.model + " ver{VER 1 2}";
  }
  areas += "}";
  const auto coded = [&records](const std::string& code) {
    std::string text;
    std::istringstream lines(records);
    for (std::string line; std::getline(lines, line);) text += (line[0] == ' ' ? code : "") + line + "\n";
    return text;
  };
  const std::string loose = " fil{FIL [A] [B] [] 0 0 0 0 0 0 0 0 0 [] [] [] 0 0 0 0";
  ExpectRecords({
      {coded("ARE"), loose + " are" + areas + "}"},
      {kFill + coded("ARE"), " fil{" + kFillModel + " are" + areas + "}"},
      {kFill + coded("ARS"), " fil{" + kFillModel + " ars" + areas + "}"},
      {kFill + "ISL 1 VER 1 2 ISS 2 VER 1 2 ISL 3 VER 1 2",
       " fil{" + kFillModel + " isl{ISL 1 ver{VER 1 2}; ISL 3 ver{VER 1 2}} iss{ISS 2 ver{VER 1 2}}}"},
      {kFill + "TTI 1 2 W\nTTI 1.5 2.5 W\nTTI 1 2 -3 4 5 6 7\nTTI 1.5 2.5 003 4 5.5 6.5 7",
       " fil{" + kFillModel + " tti{TTI [] [] 1 2 [W] 0 0 0 0; TTI [] [] 1.5 2.5 [W] 0 0 0 0; " +
           "TTI [] [] 1 2 [-3] 4 5 6 7; TTI [] [] 1.5 2.5 [3] 4 5.5 6.5 7}}"},
  });
}

TEST(StrictParser, FillsGoByTheNamesOfTheirAreas) {
  const auto area = [](const std::string& code, const std::string& name) {
    return code + " '" + name + "' 'L' S 4 5 6 VER 1 2\n";
  };
  const auto names = [](const std::string& text) {
    const StrictParse parse = ParseStrictly(SourceOf(kBegin + text));
    EXPECT_EQ(parse.result, ParseResult::kAccepted);
    std::string found;
    for (const auto* fill : *parse.traces->m_pFilArray) {
      found += std::string(fill->m_sName1) + std::to_string(fill->m_pVerArray->GetSize()) + "(";
      for (const auto* record : *fill->m_pAreArray) found += record->m_sName1;
      found += "|";
      for (const auto* record : *fill->m_pArsArray) found += record->m_sName1;
      found += "|";
      for (const auto* record : *fill->m_pTtiArray) found += record->m_sName1;
      found += ")";
    }
    return found;
  };
  const std::string fill = "FIL 'A' 'L' S 4 5 6 7 8 9 10 11 12 T A B C VER 1 2\n";
  EXPECT_EQ(
      names(area("ARE", "A") + "TTT 1 2 3 4 5\n" + area("ARE", "A") + area("ARE", "B") + area("ARE", "A")),
      "A0(AA||)B0(B||)A0(A||)");
  EXPECT_EQ(names(area("ARE", "A") + fill + area("ARE", "A")), "A0(A||)A1(A||)");
  EXPECT_EQ(names(fill + area("ARE", "A") + area("ARE", "B") + area("ARS", "B") + area("ARS", "A") + fill),
            "A1(A||)B0(B|B|)A0(|A|)A1(||)");
  EXPECT_EQ(names(fill + area("ARE", "B") + fill + "TTI 1 2 W\n" + area("ARS", "A") + "TTI 1 2 W"),
            "A1(||)B0(B||)A1(|A|BA)");
}

std::string LineReaders(const std::string& text) {
  CMTraces traces;
  TracesReader reader(traces);
  test::Feed(reader, text);
  return Described(traces);
}

TEST(StrictParser, MakesTheModelThatTheLineReaderMakes) {
  std::ostringstream generated;
  test::GenerateTraces(generated, 300'000);
  for (const std::string& text : {test::ContentOf(KESTRIN_EXAMPLES "/board/board.traces"), generated.str()}) {
    ExpectAccepted(text, LineReaders(text));
  }
}

}  // namespace
}  // namespace kestrin
