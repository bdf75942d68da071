#include "kestrin/text/fields.h"

#include <gtest/gtest.h>

#include <climits>
#include <string>
#include <vector>

#include "kestrin/framework/exceptions.h"
#include "kestrin/session/import_session.h"
#include "tests/support/cuts.h"

namespace kestrin {
namespace {

using test::ExpectCuts;
using test::Strings;
using Fields = std::vector<std::string>;

TEST(SeparateLine, CutsAtCommasOutsideDoubleQuotes) {
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

TEST(SeparateLine, CutsAtSpacesOutsideApostrophes) {
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

TEST(SeparateLine, CutsPropertyGroups) {
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

TEST(SeparateLine, BeginsAfterTheStartIndex) {
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

}  // namespace
}  // namespace kestrin
