#include "kestrin/session/tokenizer.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kestrin/session/import_session.h"
#include "tests/support/cuts.h"

namespace kestrin {
namespace {

using test::ExpectCuts;
using test::Strings;
using Tokens = std::vector<std::string>;

TEST(Tokenizer, ReturnsTokensOneByOneAndTheRest) {
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
  EXPECT_EQ(Strings(tokens), (Tokens{"a", "b", "a", "b"}));
  tokens.RemoveAll();
  tokenizer.GetTokenArray(tokens, "x,y\xFFz", ",");
  EXPECT_EQ(Strings(tokens), (Tokens{"x", "y\xFFz"}));
  tokens.RemoveAll();
  CTokenizer().GetTokenArray(tokens, "one piece", "");
  EXPECT_EQ(Strings(tokens), (Tokens{"one piece"}));
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
  EXPECT_EQ(Strings(uncut), (Tokens{"a b"}));
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
