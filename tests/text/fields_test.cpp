#include "kestrin/text/fields.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "kestrin/framework/exceptions.h"
#include "kestrin/session/import_session.h"
#include "kestrin/session/tokenizer.h"
#include "tests/support/lists.h"

namespace kestrin {
namespace {

using Fields = std::vector<std::string>;
using test::Strings;

struct Case {
  std::string line;
  Fields fields;
};

template <class Cut>
void ExpectCuts(const std::vector<Case>& cases, Cut cut) {
  for (const Case& c : cases) {
    CStringArray fields;
    fields.Add("kept");
    cut(c.line, fields);
    Fields expected = c.fields;
    expected.insert(expected.begin(), "kept");
    EXPECT_EQ(Strings(fields), expected) << c.line;
  }
}

TEST(SeparateLine, AtCommasOutsideDoubleQuotes) {
  ExpectCuts(
      {
          {"", {}},
          {",,,", {}},
          {"a,,b", {"a", "b"}},
          {",a,", {"a"}},
          {" a , \t", {" a ", " \t"}},
          {R"("x,y",z)", {R"("x,y")", "z"}},
          {R"("open,ended)", {R"("open,ended)"}},
          {R"(a\",b)", {R"(a\")", "b"}},
          {R"("a\",b",c)", {R"("a\",b")", "c"}},
          {R"(\"a,b)", {R"(\"a)", "b"}},
          {R"("",)", {R"("")"}},
      },
      [](const std::string& line, CStringArray& fields) {
        CPC_KESTRIN_GET().SeparateLineBasedonComma(line, fields);
      });
}

TEST(SeparateLine, AtSpacesOutsideApostrophes) {
  ExpectCuts(
      {
          {"", {}},
          {"   ", {}},
          {"A b  'c d' e", {"A", "b", "'c d'", "e"}},
          {"a'b c'd\te", {"a'b c'd\te"}},
          {"'open ended", {"'open ended"}},
      },
      [](const std::string& line, CStringArray& fields) {
        CPC_KESTRIN_GET().SeparateLineBasedonSpace(line, -1, fields);
      });
}

TEST(SeparateLine, IntoPropertyGroups) {
  ExpectCuts(
      {
          {"", {}},
          {R"((PART "a b") junk) (VAL 10))", {R"((PART"a b"))", "(VAL10)"}},
          {R"((A "x) (B)", {R"((A"x) (B)"}},
          {"(A) tail end", {"(A)", "tailend"}},
          {R"x((A ")") (B))x", {R"x((A")"))x", "(B)"}},
          {")))", {}},
          {"\t(A)(B)", {"(B)"}},
      },
      [](const std::string& line, CStringArray& fields) {
        CPC_KESTRIN_GET().SeparateLineForCompProperty(line, -1, fields);
      });
}

TEST(SeparateLine, BehindAStartIndex) {
  const CPC_KESTRIN_GET session;
  CStringArray fields;
  session.SeparateLineBasedonSpace("A b 'c d' e", 0, fields);
  EXPECT_EQ(Strings(fields), (Fields{"b", "'c d'", "e"}));
  for (const int beyond : {10, 11, INT_MAX}) {
    session.SeparateLineBasedonSpace("A b 'c d' e", beyond, fields);
    session.SeparateLineForCompProperty("(A) (B) (C)", beyond, fields);
    session.SeparateLineForCompProperty("", beyond, fields);
  }
  EXPECT_EQ(fields.GetSize(), 3);
  session.SeparateLineForCompProperty("x(A) b", 0, fields);
  EXPECT_EQ(Strings(fields), (Fields{"b", "'c d'", "e", "(A)", "b"}));
  for (const int below : {-2, INT_MIN}) {
    EXPECT_THROW(session.SeparateLineBasedonSpace("", below, fields), CInvalidArgException);
    EXPECT_THROW(session.SeparateLineForCompProperty("a", below, fields), CInvalidArgException);
  }
}

TEST(Tokenizer, GivesTokensOneByOneAndTheTail) {
  CTokenizer tokenizer(";a;;b c;", ";");
  CString token;
  ASSERT_TRUE(tokenizer.Next(token));
  EXPECT_EQ(token, "a");
  EXPECT_EQ(tokenizer.m_nCurPos, 2);
  EXPECT_EQ(tokenizer.Tail(), "b c;");
  tokenizer.SetDelimiters(" ");
  ASSERT_TRUE(tokenizer.Next(token));
  EXPECT_EQ(token, "b");
  ASSERT_TRUE(tokenizer.Next(token));
  EXPECT_EQ(tokenizer.Tail(), "");
  EXPECT_FALSE(tokenizer.Next(token));
  EXPECT_EQ(token, "");
}

TEST(Tokenizer, FillsArraysAndGoesBackToTheStart) {
  CTokenizer tokenizer(
      "a\xFF\xFF"
      "b",
      "\xFF");
  CStringArray tokens;
  tokenizer.GetTokenArray(tokens);
  tokenizer.GetTokenArray(tokens);
  EXPECT_EQ(Strings(tokens), (Fields{"a", "b", "a", "b"}));
  tokens.RemoveAll();
  tokenizer.GetTokenArray(tokens, "x,y\xFFz", ",");
  EXPECT_EQ(Strings(tokens), (Fields{"x", "y\xFFz"}));
  tokens.RemoveAll();
  CTokenizer().GetTokenArray(tokens, "one piece", "");
  EXPECT_EQ(Strings(tokens), (Fields{"one piece"}));
}

TEST(Tokenizer, CutsStringsOfTheArrayThatItFills) {
  const std::vector<std::string> expected{"a b c d e f g h", " ", "a", "b", "c", "d", "e", "f", "g", "h"};
  using Cut = void (*)(CTokenizer&, CStringArray&);
  const Cut cuts[] = {
      [](CTokenizer& tokenizer, CStringArray& array) {
        tokenizer.GetStringArrayFromStringToken(array[0], array);
      },
      [](CTokenizer& tokenizer, CStringArray& array) { tokenizer.GetTokenArray(array, array[0], array[1]); },
      [](CTokenizer& tokenizer, CStringArray& array) {
        tokenizer.GetTokenArrayByFullString(array, array[0], array[1]);
      },
      [](CTokenizer& tokenizer, CStringArray& array) {
        tokenizer.m_sString = " ";
        tokenizer.GetTokenArray(array, array[0], tokenizer.m_sString);
      },
      [](CTokenizer&, CStringArray& array) {
        CPC_KESTRIN_GET().SeparateLineBasedonSpace(array[0], -1, array);
      },
  };
  for (const Cut& cut : cuts) {
    CStringArray array;
    array.Add(expected[0]);
    array.Add(expected[1]);
    CTokenizer tokenizer;
    cut(tokenizer, array);
    EXPECT_EQ(Strings(array), expected);
  }
}

TEST(Tokenizer, CutsAtALongerDelimiter) {
  ExpectCuts(
      {
          {"a::b::::c", {"a", "b", "c"}},
          {"a!b::c@d", {"a!b", "c@d"}},
          {"!@#$%^::x", {"!@#$%^x"}},
          {"::", {}},
      },
      [](const std::string& line, CStringArray& fields) {
        CTokenizer().GetTokenArrayByFullString(fields, line, "::");
      });
  CStringArray uncut;
  CTokenizer().GetTokenArrayByFullString(uncut, "a b", "");
  EXPECT_EQ(Strings(uncut), (Fields{"a b"}));
}

TEST(Tokenizer, JoinsQuotedPhrases) {
  ExpectCuts(
      {
          {R"("top side" 12 x"y)", {"top side", "12", "xy"}},
          {R"("" a)", {"", "a"}},
          {R"(a "open to the end)", {"a"}},
          {R"("a   b")", {"a b"}},
          {R"(" x")", {" x"}},
          {R"("a"b c)", {"ab", "c"}},
      },
      [](const std::string& line, CStringArray& fields) {
        CString string(line);
        CTokenizer().GetStringArrayFromStringToken(string, fields);
        EXPECT_EQ(string.View(), line);
      });
}

}  // namespace
}  // namespace kestrin
