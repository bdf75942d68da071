#include "kestrin/traces/strict/strict_parser.h"

#include <gtest/gtest.h>

#include <sstream>
#include <string>
#include <vector>

#include "kestrin/traces/traces_reader.h"
#include "support/described.h"
#include "support/generators/generators.h"
#include "support/source_of.h"
#include "tests/support/content_of.h"
#include "tests/support/feed.h"

namespace kestrin {
namespace {

using test::Described;
using test::SourceOf;

const std::string kBegin = "# Application x\nUNITS MM\nST 1 2 3 4\nXRF 1 U_1\n";
const std::string kBeginModel = "units=MM st=(1 2 3 4) xrf{1 U_1 U_1}";

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

/// Records after the start of a file.
void ExpectRecords(const std::vector<Case>& cases) {
  for (const Case& c : cases) ExpectAccepted(kBegin + c.text, kBeginModel + c.model);
}

TEST(StrictParser, AcceptsTheFormsOfAFile) {
  ExpectAccepted(kBegin, kBeginModel);
  ExpectAccepted(kBegin + "ST 5 6 7 8 9 10\n",
                 "units=MM st=(1 2 3 4) stLong=(5 6 7 8 9 10 -1 -1) xrf{1 U_1 U_1}");
  ExpectAccepted("UNITS IN ST 1.5 2.5 3 4 XRF 1 A_1 XRF 2 A_2 ST 2 3 4 5",
                 "units=IN st=(2 3 4 5) xrf{1 A_1 A_1} xrf{2 A_2 A_2}");
  ExpectAccepted("UNITS IN\nST 1 2 3 4 5 6 7 8\nXRF 1 A_1\nST 9.5 8.5 7 6\n",
                 "units=IN st=(9.5 8.5 7 6) stLong=(1 2 3 4 5 6 -1 -1) xrf{1 A_1 A_1}");
}

TEST(StrictParser, AcceptsBoardWideRecords) {
  ExpectRecords({
      {"TTT 1 2 3 4 5\nTTT 1 2.5 3 4 5", " ttt{1 2 3 4 5} ttt{1 2.5 3 4 5}"},
      {"TET 1 A 2 3.5 4.5\nTET 1 $A 2.5 3.5 4.5\nTET 1 A 2 3 4",
       " tet{1 A 2 3.5 4.5} tet{1 $A 2.5 3.5 4.5} tet{1 A 2 3 4}"},
      {"TTT 99999999999 99999999999 3 4 5", " ttt{2147483647 2147483647 3 4 5}"},
  });
}

/// Two records of a list.
std::string Both(const std::string& name, const std::string& first, const std::string& second) {
  return " " + name + "{" + first + "} " + name + "{" + second + "}";
}

TEST(StrictParser, AcceptsTheRecordsOfANet) {
  const std::string wire = " 1 2 3 4 5\nSEG 1 2 3 4\n";
  const std::string realWire = " 1 2.5 3.5 4.5 5.5\nSEG 1 2 3 4\n";
  const std::string open = " 1 2 3 4 5 6 7\nSEG 1 2 3 4\n";
  const std::string realOpen = " 1 2.5 3.5 4 5.5 6.5 7\nSEG 1 2 3 4\n";
  const std::string six = " 1 2 3 4 5 6\n";
  const std::string realSix = " 1.5 2.5 3 4.5 5.5 6\n";
  const auto wires = [](const std::string& name) {
    return Both(name, "1 2 3 4 5 seg{1 2 3 4=4}", "1 2.5 3.5 4.5 5.5 seg{1 2 3 4=4}");
  };
  const auto opens = [](const std::string& name) {
    return Both(name, "1 2 3 4 5 6 7 seg{1 2 3 4=4}", "1 2.5 3.5 4 5.5 6.5 7 seg{1 2 3 4=4}");
  };
  const auto sixes = [](const std::string& name) { return Both(name, "1 2 3 4 5 6", "1.5 2.5 3 4.5 5.5 6"); };
  ExpectRecords({
      {"# NET 'A B'\n# NET 'C'", " net{name=[A B]} net{name=C}"},
      {"# NET 'A'\nWIR" + wire + "WIR" + realWire, " net{name=A" + wires("wir") + "}"},
      {"# NET 'A'\nINC" + open + "INC" + realOpen, " net{name=A" + opens("inc") + "}"},
      {"# NET 'A'\nANT" + wire + "ANT" + realWire, " net{name=A" + wires("antWir") + "}"},
      {"# NET 'A'\nANT" + open + "ANT" + realOpen, " net{name=A" + opens("antInc") + "}"},
      {"# NET 'A'\nGUI" + six + "GUI" + realSix + "CHG" + six + "CHG" + realSix,
       " net{name=A" + sixes("gui") + sixes("chg") + "}"},
      {"# NET 'A'\nWIR 1 2 3 4 5\nSEG 1.5 2.5 3.9 0012\nSEG 1 2 9e99 12.5 X\nSEG x 1x 3 -1 X Y",
       " net{name=A wir{1 2 3 4 5 seg{1.5 2.5 3 4=12} seg{1 2 2147483647 12.5 X} seg{0 1 3 -1 X}}}"},
  });
}

TEST(StrictParser, AcceptsFillHeaders) {
  const Case headers[] = {
      {"9 10 11 12 T A B C\nVER 1 2", "9 10 11 12) tail=(A B C) ver{x=1 y=2}"},
      {"9.5 10 11 12 T A B 0 VER 1.5 2.5", "9.5 10 11 12) tail=(A B 0) ver{x=1.5 y=2.5}"},
      {"9 10 11 12 E 14 15 16 17 T A -7 C VER 1 2 VER 3 4",
       "9 10 11 12) tail=(A -7 C) ext=(14 15 16 17) ver{x=1 y=2} ver{x=3 y=4}"},
      {"9.5 10 11 12 E 14.9 -15.9 16.5 17.5 T A -7 0 VER 1 2",
       "9.5 10 11 12) tail=(A -7 0) ext=(14 -15 16.5 17.5) ver{x=1 y=2}"},
      {"9 10 11 12 E 14 15 16 17 T 0012 B C VER 1 2",
       "9 10 11 12) tail=(12 B C) ext=(14 15 16 17) ver{x=1 y=2}"},
      {"9 10 11 12 T 0012 B 0 VER 1 2", "9 10 11 12) tail=(12 B 0) ver{x=1 y=2}"},
      {"9 10 11 12 T 0012 -7 C VER 1 2", "9 10 11 12) tail=(12 -7 C) ver{x=1 y=2}"},
      {"9 10 11 12 T 0012 -7 0 VER 1 2", "9 10 11 12) tail=(12 -7 0) ver{x=1 y=2}"},
  };
  for (const Case& header : headers) {
    ExpectAccepted(kBegin + "FIL 'A b' '$' $ 4 5 6 7 8 " + header.text,
                   kBeginModel + " fil{name=([A b] $) 3=($ 4 5 6 7 8 " + header.model + "}");
  }
}

const std::string kFill = "FIL 'A' 'B' S 4 5 6 7 8 9 10 11 12 T A B C\nVER 1 2\n";
const std::string kFillModel = " fil{name=(A B) 3=(S 4 5 6 7 8 9 10 11 12) tail=(A B C) ver{x=1 y=2}";

/// An area of these values from the fifth on, before and in a fill.
void ExpectAreas(const Case& values) {
  const std::string area = " A 'B' S 4 " + values.text + "\nVER 1 2\n";
  const std::string areaModel = "{name=(A B) 3=(S 4 " + values.model + " ver{x=1 y=2}}";
  ExpectRecords({
      {"ARE" + area, " fil{name=(A B) are" + areaModel + "}"},
      {kFill + "ARE" + area, kFillModel + " are" + areaModel + "}"},
      {kFill + "ARS" + area, kFillModel + " ars" + areaModel + "}"},
  });
}

TEST(StrictParser, AcceptsTheRecordsOfAFill) {
  ExpectAreas({"5 6", "5 6)"});
  ExpectAreas({"5.5 6", "5.5 6)"});
  ExpectAreas({"5 6 W 8", "5 6) lastValue=8"});
  ExpectAreas({"5.5 6 W 8", "5.5 6) lastValue=8"});
  ExpectAreas({"5 6 W 8 9 10 11 X 13", "5 6) lastValue=13 8=(8 9 10 11)"});
  ExpectAreas({"5.5 6 W 8.9 -9.9 10.5 11.5 X 13", "5.5 6) lastValue=13 8=(8 -9 10.5 11.5)"});
  ExpectRecords({
      {kFill + "ISL 1 VER 1 2 ISS 2 VER 1 2 ISL 3 VER 1 2",
       kFillModel + " isl{1 ver{x=1 y=2}} isl{3 ver{x=1 y=2}} iss{2 ver{x=1 y=2}}}"},
      {kFill + "TTI 1 2 W\nTTI 1.5 2.5 W\nTTI 1 2 -3 4 5 6 7\nTTI 1.5 2.5 003 4 5.5 6.5 7",
       kFillModel + " tti{1 2 W} tti{1.5 2.5 W} tti{1 2 -3 4 5 6 7} tti{1.5 2.5 3 4 5.5 6.5 7}}"},
  });
}

TEST(StrictParser, FillsAreMatchedByTheNamesOfTheirAreas) {
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
