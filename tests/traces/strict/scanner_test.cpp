#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/framework/string.h"
#include "kestrin/traces/strict/traces_scanner.h"
#include "support/source_of.h"

namespace kestrin {
namespace {

using Token = TracesGrammar::token;

std::string NameOf(int token) {
  static constexpr std::string_view kNames[] = {
      "ANT",      "ARE_ALONE", "ARE_FILL", "ARS",        "CHG",     "FIL",  "GUI",     "INC",
      "ISL",      "ISS",       "ST",       "SEG",        "TET",     "TTI",  "TTT",     "UNITS",
      "VER",      "WIR",       "XRF",      "NET_HEADER", "INTEGER", "REAL", "QSTRING", "NETNAME",
      "SEGFIELD", "WORD",      "WORDNUM",  "UNITNAME",   "APPTEXT", "RANGE"};
  if (token < 256) return std::string(1, static_cast<char>(token));
  const auto index = static_cast<std::size_t>(token - Token::T_ANT);
  return std::string(index < std::size(kNames) ? kNames[index] : "?");
}

/// A token with its value.
std::string Described(int token, const TracesGrammar::value_type& value) {
  switch (token) {
    case Token::T_INTEGER: return "INTEGER=" + std::to_string(value.whole);
    case Token::T_REAL: {
      CString text;
      text.Format("REAL=%.15g", value.real);
      return text.GetString();
    }
    case Token::T_QSTRING:
    case Token::T_NETNAME:
    case Token::T_SEGFIELD:
    case Token::T_WORD:
    case Token::T_WORDNUM:
    case Token::T_UNITNAME:
    case Token::T_APPTEXT: return NameOf(token) + "=" + std::string(std::string_view(value.text));
    default: return NameOf(token);
  }
}

/// The tokens of a text, with "/" for each end of a line.
std::string Tokens(const std::string& text, std::size_t piece = 1000) {
  TracesScanner scanner(test::SourceOf(text, piece));
  std::string tokens;
  std::int64_t lines = 0;
  for (;;) {
    TracesGrammar::value_type value{};
    const int token = scanner.Next(value);
    for (; lines < scanner.LineEnds(); ++lines) tokens += "/ ";
    if (token == Token::T_END) break;
    tokens += Described(token, value) + " ";
  }
  if (!tokens.empty()) tokens.pop_back();
  return tokens;
}

struct Case {
  std::string text;
  std::string tokens;
};

void Expect(std::initializer_list<Case> cases) {
  for (const Case& c : cases) {
    EXPECT_EQ(Tokens(c.text), c.tokens) << c.text;
    EXPECT_EQ(Tokens(c.text, 1), c.tokens) << c.text;  // the ends of blocks make no difference
  }
}

TEST(TracesScanner, RecognizesKeywordsInEveryStateUnlessALongerTokenMatches) {
  Expect({
      {"ANT ARS CHG GUI INC ISL ST TET", "ANT ARS CHG GUI INC ISL ST TET"},
      {"TTI TTT VER WIR XRF ISS SEG", "TTI TTT VER WIR XRF ISS SEG"},
      {"ARE FIL ARE\nARE", "ARE_ALONE FIL ARE_FILL / ARE_FILL"},
      {"# NET 'FIL' ARE", "NET_HEADER FIL ' NETNAME= ARE"},
      {"ANTX ANT_1 ANT1", "WORD=ANTX WORDNUM=ANT_1 ANT INTEGER=1"},
      {"SEG ANT ANTX", "SEG ANT SEGFIELD=ANTX"},
      {"UNITS ANT ANTX", "UNITS ANT UNITNAME=ANTX"},
      {"# ApplicationANT\nANT x", "ANT / APPTEXT=ANT x"},
  });
}

TEST(TracesScanner, CutsWordsNumbersAndQuotedTexts) {
  Expect({
      {"V1 Ab_1 A_1x", "WORD=V INTEGER=1 WORD=A INTEGER=1 WORDNUM=A_1"},
      {"12 -12 +5 0012", "INTEGER=12 INTEGER=-12 INTEGER=5 INTEGER=12"},
      {"1.5 -1.25 12.5.3 -.5 5. .5",
       "REAL=1.5 REAL=-1.25 REAL=12.5 INTEGER=3 - INTEGER=5 INTEGER=5 INTEGER=5"},
      {"1-2 1- 1-2.5 -1-2 1--2",
       "RANGE INTEGER=1 - RANGE INTEGER=5 INTEGER=-1 INTEGER=-2 INTEGER=1 - INTEGER=-2"},
      {"99999999999 -99999999999", "INTEGER=2147483647 INTEGER=-2147483648"},
      {"$A$ $ $a A$", "WORD=$A$ WORD=$ WORD=$ WORD=A WORD=$"},
      {"'a b' '' 'x", "QSTRING='a b' ' QSTRING=' '"},
      {"lower;,*\x01\xE9 \t", ""},
      {"", ""},
  });
}

TEST(TracesScanner, SkipsCommentsPropertiesAndNotes) {
  Expect({
      {"# BOARD B 1\n#\tdate 1\n#STI 1\nPRP 1\n1", "/ / / / INTEGER=1"},
      {"# A 1\n#BOAR 1\nPRP\nPRPX 1", "WORD=A INTEGER=1 / WORD=BOAR INTEGER=1 / WORD=PRP /"},
      {"1 (a (2) 3) 4 ) 5\n( 6", "INTEGER=1 INTEGER=5 / INTEGER=6"},
      {"() 1 ()) 2", "INTEGER=2"},
      {"SEG (a b) c\nSEG (d)e", "SEG SEGFIELD=c / SEG SEGFIELD=(d)e"},
      {"(a) SEG (b c\nSEG (d e) UNITS (f\nUNITS (1) (2 MM (A\n(B) 3",
       "SEG SEGFIELD=(b SEGFIELD=c / SEG SEGFIELD=UNITS SEGFIELD=(f / UNITS INTEGER=2 UNITNAME=MM WORD=A / "
       "INTEGER=3"},
      {"SEG # BOARD x\n1", "SEG / INTEGER=1"},
      {"ANT#  ApplicationX", "ANT WORD=A WORD=X"},
  });
}

TEST(TracesScanner, EntersAndLeavesItsStates) {
  Expect({
      {"# NET 'GND'\nWIR", "NET_HEADER NETNAME=GND ' / WIR"},
      {"#  NET 'GND'", "WORD=NET QSTRING='GND'"},
      {"# NET ''\nA'", "NET_HEADER ' / NETNAME=A '"},
      {"# NET 'a 1(b)#' 1", "NET_HEADER NETNAME=a 1(b)# ' INTEGER=1"},
      {"SEG 1.5 2.5 3 12 X\n1 X",
       "SEG SEGFIELD=1.5 SEGFIELD=2.5 SEGFIELD=3 SEGFIELD=12 SEGFIELD=X / INTEGER=1 WORD=X"},
      {"SEG 'a b' 'c", "SEG QSTRING='a b' SEGFIELD='c"},
      {"SEG 1 VER\nVER 2\nVER\t-3.5 \nVERA 4\nSEG 5\nSEG 6\nSEG\nSEGX",
       "SEG SEGFIELD=1 VER / VER INTEGER=2 / VER REAL=-3.5 / WORD=VERA INTEGER=4 / SEG SEGFIELD=5 / SEG "
       "SEGFIELD=6 / "
       "SEG / WORD=SEGX"},
      {"UNITS MM MM", "UNITS UNITNAME=MM WORD=MM"},
      {"UNITS mm 1 1.5 A_1 $A\nIN", "UNITS INTEGER=1 REAL=1.5 WORDNUM=A_1 WORD=$A / UNITNAME=IN"},
      {"# Application  board 'x'\nA", "APPTEXT=  board 'x' / WORD=A"},
      {"# Application\n\n(x)\nA", "/ / APPTEXT=(x) / WORD=A"},
  });
}

TEST(TracesScanner, ReadsTextWhateverItsSizeAndLineEnds) {
  Expect({
      {"1\r\n2\r\r\n\r3\r", "INTEGER=1 / INTEGER=2 / INTEGER=3"},
      {"SEG a\r\r\nSEG b\r", "SEG SEGFIELD=a\r / SEG SEGFIELD=b\r"},
  });
  const std::string longText(300'000, 'A');
  EXPECT_EQ(Tokens(longText + " 1"), "WORD=" + longText.substr(0, 255) + " INTEGER=1");
  EXPECT_EQ(Tokens("(" + longText + ") 1"), "INTEGER=1");
  EXPECT_EQ(Tokens(std::string(300'000, '0') + "7"), "INTEGER=7");
  std::string openNotes;  // searching for the end of each would take quadratic time
  for (int i = 0; i < 300'000; ++i) openNotes += "(a ";
  EXPECT_EQ(Tokens(openNotes + "SEG " + openNotes + "\n1").substr(0, 18), "SEG SEGFIELD=(a SE");
}

TEST(TracesScanner, KeepsZeroBytesAndTheirEscapesApart) {
  using std::string_literals::operator""s;
  Expect({
      {"SEG a\0b c\n\0A"s, "SEG SEGFIELD=a SEGFIELD=c / WORD=A"},
      {"SEG \x01 a\x01"s, "SEG SEGFIELD=\x01 SEGFIELD=a\x01"},
      {"SEG \x01\x02\x01\x01\x02\0b \0 c\x01"s, "SEG SEGFIELD=\x01\x02\x01\x01\x02 SEGFIELD= SEGFIELD=c\x01"},
      {"'\0a' '\x01\0'(\0)\x01\0A\x01 1\0002"s, "QSTRING=' QSTRING='\x01 WORD=A INTEGER=1 INTEGER=2"},
      {"# NET 'A\x01\0'"s, "NET_HEADER NETNAME=A\x01 '"},
      {"# Application\x01\x02\0"s, "APPTEXT=\x01\x02"},
  });
  const std::string ones(300, '\x01');
  EXPECT_EQ(Tokens("SEG " + ones + " \0"s + ones), "SEG SEGFIELD=" + ones.substr(0, 255) + " SEGFIELD=");
  std::string zeros = "# NET 'A";  // backtracking at each would take quadratic time
  for (int i = 0; i < 1'000'000; ++i) zeros += "\0\x01 "s;
  EXPECT_EQ(Tokens(zeros + "'", 100'000), "NET_HEADER NETNAME=A '");
}

/// The tokens of a file that ends more than once, as terminal input may.
TEST(TracesScanner, ContinuesAfterTheEndOfTheFileInTheSameState) {
  struct Ended {
    std::string before;
    std::string after;
    std::vector<int> tokens;
  };
  const Ended cases[] = {
      {"1", "2", {Token::T_INTEGER, 0, Token::T_INTEGER, 0}},
      {"", "\n", {0, 0, 0}},
      {"UNITS", "A", {Token::T_UNITS, 0, Token::T_UNITNAME, 0}},
      {"SEG (a", "(b c) 1", {Token::T_SEG, Token::T_SEGFIELD, 0, Token::T_SEGFIELD, 0}},
      {"(A \r", "(B) 1", {Token::T_WORD, 0, Token::T_INTEGER, 0}},
      {"( # NET '", "A' (A)", {Token::T_NET_HEADER, 0, Token::T_NETNAME, '\'', 0}},
      {"# Application", "ab", {0, Token::T_APPTEXT, 0}},
  };
  for (const Ended& c : cases) {
    int pieces = 0;
    TracesScanner scanner([&](char* bytes, std::size_t size) {
      const int piece = pieces++;
      return piece == 0 ? c.before.copy(bytes, size) : piece == 2 ? c.after.copy(bytes, size) : 0;
    });
    if (c.before.empty()) pieces = 1;
    std::vector<int> tokens;
    while (tokens.size() < c.tokens.size()) {
      TracesGrammar::value_type value{};
      tokens.push_back(scanner.Next(value));
    }
    EXPECT_EQ(tokens, c.tokens) << c.before;
  }
}

}  // namespace
}  // namespace kestrin
