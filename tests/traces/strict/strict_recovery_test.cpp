#include <gtest/gtest.h>

#include <new>
#include <string>
#include <vector>

#include "kestrin/traces/strict/strict_parser.h"
#include "support/described.h"
#include "support/source_of.h"

namespace kestrin {
namespace {

using test::Described;
using test::SourceOf;

const std::string kWithout = "UNITS MM\nST 1 2 3 4\nXRF 1 U_1\n";  // three lines
const std::string kWith = "# Application x\n" + kWithout;
const std::string kModel = "units=MM st=(1 2 3 4) xrf{1 U_1 U_1}";
const std::string kEnd = "ST 1 2 3 4\n";

/// The outcome of a parse: result, lines of the reported errors, and model.
std::string Outcome(const std::string& text) {
  const StrictParse parse = ParseStrictly(SourceOf(text));
  std::string outcome = std::to_string(static_cast<int>(parse.result));
  for (const SyntaxError& error : parse.errors) outcome += " @" + std::to_string(error.line);
  const std::string last = parse.errors.empty() ? "" : std::to_string(parse.errors.back().line);
  EXPECT_EQ(parse.error, last.empty() ? "" : "Traces File Error: parse error - ErrorLine : " + last) << text;
  if (parse.traces == nullptr) return outcome + " no model";
  const std::string model = Described(*parse.traces);
  return outcome + (model.starts_with(kModel) ? model.substr(kModel.size()) : " only " + model);
}

struct Case {
  std::string text;
  std::string outcome;
};

void Expect(const std::vector<Case>& cases) {
  for (const Case& c : cases) EXPECT_EQ(Outcome(c.text), c.outcome) << c.text;
}

TEST(StrictRecovery, NothingResumesBeforeTheRecords) {
  Expect({
      {"", "1 @0 no model"},
      {"\n\n", "1 @2 no model"},
      {"ST 1 2 3 4\n", "1 @0 no model"},
      {"# Application x\n# Application x\n" + kWithout, "1 @1 no model"},
      {"UNITS MM\nUNITS IN\n", "1 @1 only units=MM"},
      {"UNITS MM\nST 1 2 3\nXRF 1 U_1\n", "1 @2 only units=MM"},
  });
}

TEST(StrictRecovery, AnErrorInsideANetDropsThatNet) {
  const std::string nets = "# NET 'A'\n# NET 'B'\nGUI 1 2 3 4 5 6\nGUI 1 2 3.5 4 5 6\nGUI 1 2 3 4 5 6\n";
  Expect({
      {kWithout + nets + "# NET 'C'\n" + kEnd, "0 @6 net{name=A} net{name=C}"},
      {kWithout + nets + "FIL 'A' 'B' S 4 5 6 7 8 9 10 11 12 T A B C\nVER X\nTET 1 A 2 3 4\n" + kEnd,
       "0 @6 @9 tet{1 A 2 3 4} net{name=A}"},
      {kWithout + nets + kEnd, "0 @6 net{name=A}"},
      {kWithout + nets, "1 @6 net{name=A}"},
      {kWith + nets + "# NET 'C'\n", "1 @7 net{name=A}"},
      {kWithout + "# NET 'A'\nWIR 1 2 3 4 5\nSEG 1 2 3\nSEG 1 2 3 4\n" + kEnd, "0 @6"},
  });
}

TEST(StrictRecovery, AnErrorAtATokenThatStartsARecordResumesThere) {
  const std::string nets = "# NET 'A'\n# NET 'B'\nGUI 1 2 3 4 5\n";
  Expect({
      {kWithout + nets + "# NET 'C'\n" + kEnd, "0 @6 net{name=A} net{name=C}"},
      {kWith + nets + "# NET 'C'\n", "0 @7 net{name=A} net{name=C}"},
      {kWith + nets + kEnd, "0 @7 net{name=A}"},
      {kWith + nets + "TTT 1 2 3 4 5\n", "0 @7 ttt{1 2 3 4 5} net{name=A}"},
      {"UNITS MM\nST 1 2 3 4\nTTT 1 2 3 4 5\n" + kEnd, "0 @2 only units=MM st=(1 2 3 4) ttt{1 2 3 4 5}"},
  });
}

TEST(StrictRecovery, AnErrorAfterACompleteNetKeepsIt) {
  Expect({
      {kWithout + "# NET 'A'\nXRF 2 U_2\n# NET 'B'\n" + kEnd, "0 @4 net{name=A} net{name=B}"},
      {kWith + "# NET 'A'\nXRF 2 U_2\n# NET 'B'\n", "1 @5 net{name=A}"},
      {kWithout + "# NET 'A'\nVER 1 2\n- 1-2\n# NET 'B'\n" + kEnd, "0 @4 net{name=A} net{name=B}"},
  });
}

TEST(StrictRecovery, AnErrorInsideAFillDropsItButKeepsCompleteFills) {
  const std::string fill = "FIL 'A' 'L' S 4 5 6 7 8 9 10 11 12 T A B C\nVER 1 2\n";
  const std::string other = "ARE 'B' 'L' S 4 5 6\nVER 1 2\n";
  const std::string first = "fil{name=(A L) 3=(S 4 5 6 7 8 9 10 11 12) tail=(A B C) ver{x=1 y=2}";
  const std::string area = "are{name=(B L) 3=(S 4 5 6) ver{x=1 y=2}}";
  const std::string loose = "fil{name=(B L) " + area;
  Expect({
      {kWithout + fill + "ISL 1\nISL 2\nVER 1 2\n" + fill + kEnd, "0 @6 " + first + "}"},
      {kWith + fill + "ISL 1\nISL 2\nVER 1 2\n" + fill, "1 @7"},
      {kWith + fill + fill + "ISL 1\n# NET 'A'\n", "0 @9 net{name=A} " + first + "}"},
      {kWith + fill + other + "ISL 1\n# NET 'A'\n", "0 @9 net{name=A} " + first + "}"},
      {kWithout + fill + other + "ISL X\n" + fill + "TTI 1 2 W\n" + kEnd,
       "0 @7 " + first + "} " + first + " tti{name=(B L) 1 2 W}}"},
      {kWithout + other + "XRF 2 U_2\n" + other + kEnd, "0 @5 " + loose + " " + area + "}"},
      {kWithout + fill + "TTT 1 2 3 4 5\n" + other + kEnd, "0 @6 ttt{1 2 3 4 5} " + first + "}"},
  });
}

TEST(StrictRecovery, AnErrorLessThanThreeTokensAfterAnotherIsNotReported) {
  const std::string good = "TTT 1 2 3 4 5\n" + kEnd;
  Expect({
      {kWithout + "TTT X\nTTT X\nTTT 1 X\n" + good, "0 @3 ttt{1 2 3 4 5}"},
      {kWithout + "TTT X\nTTT 1 2 X\n" + good, "0 @3 @4 ttt{1 2 3 4 5}"},
      {kWith + "TTT 1\nTTT TTT TTT 1\nTTT 1 2\n" + good, "0 @5 @7 ttt{1 2 3 4 5}"},
      {kWith + "TTT 1\nTTT X\n" + good, "1 @5"},
  });
}

TEST(StrictRecovery, TheEndOfTheFileEndsARecovery) {
  Expect({
      {kWithout + "# NET 'A'\n", "1 @4 net{name=A}"},
      {kWithout + "TTT 1 2\n", "1 @4"},
      {kWithout + "TTT X\nTTT 1", "1 @3"},
      {kWith + "# NET 'A'\nTTT 1 2\n", "0 @6 net{name=A}"},
      {kWithout + kEnd + "TTT 1 2 3 4 5\n" + kEnd, "1 @4"},
      {kWithout + "ST 1 2 X\nTTT 1 2 3 4 5\n" + kEnd, "0 @3 ttt{1 2 3 4 5}"},
  });
}

TEST(StrictRecovery, ReportsWhatItFoundAndExpected) {
  using std::string_literals::operator""s;
  const StrictParse parse =
      ParseStrictly(SourceOf(kWith + "GUI 1\nTTT 1 2 3.5\nTTT 1 2 3\n# NET 'A'\nGUI\n"));
  ASSERT_EQ(parse.errors.size(), 1U);
  EXPECT_EQ(parse.errors[0].Describe(), "found GUI, expected the end of the file");
  const auto described = [](const std::string& text) {
    return ParseStrictly(SourceOf(kWithout + text)).errors.at(0).Describe();
  };
  EXPECT_EQ(described("TTT 1 2 3.5\n"), "found a real number (3.5), expected a whole number");
  EXPECT_EQ(described("TTT 'x' 2\n"), "found a text in apostrophes ('x'), expected a whole number");
  EXPECT_EQ(described("TTT '\x01\0' 2\n"s),
            "found a text in apostrophes ('\x01\0'), expected a whole number"s);
  EXPECT_EQ(described("TTT 1"), "found the end of the file, expected a whole number or a real number");
  EXPECT_EQ(described("# NET 'A'\nWIR 1 2 3 4 5\nSEG 1 2 3\nSEG"),
            "found SEG, expected a value of a SEG line");
}

TEST(StrictRecovery, ExhaustedMemoryEndsTheParseAndNothingElse) {
  std::string text = kWith + "# NET 'A'\nTTT 1 2 3 4 5\n# NET 'B'\nGUI 1 2 3";
  const StrictParse parse = ParseStrictly([&](char* bytes, std::size_t size) {
    if (text.empty()) throw std::bad_alloc();
    const std::size_t count = text.copy(bytes, size);
    text.erase(0, count);
    return count;
  });
  EXPECT_EQ(parse.result, ParseResult::kExhausted);
  EXPECT_EQ(parse.error, "out of dynamic memory in yy_create_buffer()");
}

}  // namespace
}  // namespace kestrin
