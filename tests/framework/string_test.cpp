#include "kestrin/framework/string.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <climits>
#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>
#include <utility>

#include "kestrin/framework/exceptions.h"

namespace kestrin {
namespace {

TEST(String, ReadsBytesUpToAndIncludingTheEnd) {
  const CString text("ab");
  EXPECT_EQ(text[1], 'b');
  EXPECT_EQ(text.GetAt(2), '\0');
  EXPECT_THROW(static_cast<void>(text[3]), CInvalidArgException);
  EXPECT_THROW(static_cast<void>(text[-1]), CInvalidArgException);
  EXPECT_EQ(CString(static_cast<const char*>(nullptr)), "");
}

TEST(String, ComparesAndJoinsTextsNotPointers) {
  const CString a("a");
  const CString b("b");
  EXPECT_TRUE(a < b && b > a && a <= b && b >= a && a >= CString("a") && a < "b" && a != b && a != "b");
  EXPECT_EQ(a + '/' + b + "!", "a/b!");
}

TEST(String, FindsFromAStart) {
  const CString text("a-b-c");
  EXPECT_EQ(text.Find('-'), 1);
  EXPECT_EQ(text.Find('-', 2), 3);
  EXPECT_EQ(text.Find("b-", -5), 2);
  EXPECT_EQ(text.Find('a', 1), -1);
  EXPECT_EQ(text.Find('a', 99), -1);
  EXPECT_EQ(text.ReverseFind('-'), 3);
  EXPECT_EQ(text.ReverseFind('x'), -1);
}

TEST(String, ClampsParts) {
  const CString text("abcd");
  struct Case {
    CString part;
    const char* expected;
  };
  const Case cases[] = {
      {text.Left(2), "ab"}, {text.Left(-1), ""},     {text.Left(9), "abcd"},      {text.Right(2), "cd"},
      {text.Right(-1), ""}, {text.Right(9), "abcd"}, {text.Mid(1), "bcd"},        {text.Mid(-3), "abcd"},
      {text.Mid(9), ""},    {text.Mid(1, 2), "bc"},  {text.Mid(3, INT_MAX), "d"}, {text.Mid(1, -1), ""},
  };
  for (const Case& c : cases) EXPECT_EQ(c.part, c.expected);
}

TEST(String, ReplacesRemovesAndDeletes) {
  CString text("aaab");
  EXPECT_EQ(text.Replace("aa", "x"), 1);
  EXPECT_EQ(text, "xab");
  EXPECT_EQ(text.Replace("", "y"), 0);
  EXPECT_EQ(text.Replace("a", ""), 1);
  EXPECT_EQ(text, "xb");
  EXPECT_EQ(text.Remove('x'), 1);
  text = "abcdef";
  EXPECT_EQ(text.Delete(1, 2), 4);
  EXPECT_EQ(text.Delete(2, 99), 2);
  EXPECT_EQ(text.Delete(7, 1), 2);
  EXPECT_EQ(text, "ad");
}

TEST(String, TrimsAndChangesAsciiOnly) {
  CString text(" \t\r\n\v\fMaß \xE4 ");
  EXPECT_EQ(text.TrimLeft().TrimRight(), "Maß \xE4");
  EXPECT_EQ(text.MakeUpper(), "MAß \xE4");
  EXPECT_EQ(text.MakeLower(), "maß \xE4");
  EXPECT_EQ(CString("))a;)").TrimRight(");").TrimLeft(")"), "a");
  EXPECT_EQ(CString("  ").TrimRight(), "");
}

TEST(String, TokenizesUntilTheStartIsMinusOne) {
  const CString text("  ab  c");
  int start = 0;
  EXPECT_EQ(text.Tokenize(" ", start), "ab");
  EXPECT_EQ(start, 5);
  EXPECT_EQ(text.Tokenize(" ", start), "c");
  EXPECT_EQ(text.Tokenize(" ", start), "");
  EXPECT_EQ(start, -1);
  EXPECT_THROW(static_cast<void>(text.Tokenize(" ", start)), CInvalidArgException);
}

TEST(String, KeepsShortAndLongTextsThroughCopiesAndGrowth) {
  CString grown;
  std::string expected;
  for (const char c : {'a', 'b', '\0', 'c'}) {  // beyond the 15 bytes that fit into the object
    for (int i = 0; i < 5; ++i) grown += c;
    expected.append(5, c);
    ASSERT_EQ(grown.View(), expected);
    ASSERT_EQ(grown.GetString()[expected.size()], '\0');
    const CString copy(grown);
    grown += grown;
    expected += expected;
    ASSERT_EQ(grown.View(), expected);
    CString moved(std::move(grown));
    grown = copy;
    ASSERT_EQ(grown.View(), expected.substr(0, expected.size() / 2));
    grown = std::move(moved);
  }
  grown = grown.View().substr(3, 20);
  EXPECT_EQ(grown.View(), expected.substr(3, 20));
  grown = "x";
  EXPECT_EQ(grown, "x");
  static_assert(sizeof(CString) == 16);
}

TEST(String, CopiesOfLongTextsAreIndependent) {
  const std::string text(100, 'a');
  const auto changed = [&](auto change) {
    const CString original(text);
    CString copy(original);
    EXPECT_EQ(copy.GetString(), original.GetString());  // shared until one of them changes
    change(copy);
    EXPECT_EQ(original.View(), text);
    return copy;
  };
  EXPECT_EQ(changed([](CString& copy) { copy += 'b'; }).View(), text + 'b');
  EXPECT_EQ(changed([](CString& copy) { copy = ""; }), "");
  EXPECT_EQ(changed([](CString& copy) { copy.Delete(1, 98); }), "aa");
  EXPECT_EQ(changed([](CString& copy) { copy.MakeUpper(); }).View(), std::string(100, 'A'));
  EXPECT_EQ(changed([](CString& copy) { copy.ReleaseBuffer(16); }).View(), text.substr(0, 16));
  CString written(text);
  char* const bytes = written.GetBuffer(100);
  const CString copyWhileWritten(written);
  bytes[0] = 'b';
  EXPECT_EQ(copyWhileWritten.View(), text);
}

TEST(String, ChangedInPlaceIsSharedByItsCopiesAgain) {
  CString text(std::string(100, 'a'));
  const auto isShared = [&] { return CString(text).GetString() == text.GetString(); };
  text.MakeUpper();
  EXPECT_TRUE(isShared());
  text.MakeLower();
  EXPECT_TRUE(isShared());
  text.GetBuffer(100)[0] = 'b';
  EXPECT_FALSE(isShared());
  text.ReleaseBuffer();
  EXPECT_TRUE(isShared());
}

TEST(String, FormatsStringsOfAnyLength) {
  CString text;
  text.Format("%d:%s", 7, "x");
  EXPECT_EQ(text, "7:x");
  for (const std::size_t length : {0U, 15U, 16U, 1000U}) {
    const std::string expected(length, 'a');
    const CString other(expected);
    text.Format("%s", other);
    EXPECT_EQ(text.View(), expected);
    text.Format("%c%s/%s %.1f %hhd", 'b', text, other + "c", 0.5F, static_cast<signed char>(-1));
    EXPECT_EQ(text.View(), ("b" + expected).append("/").append(expected).append("c 0.5 -1"));
  }
  const CString format("%s-%s");
  text = "a string of its own to be formatted into itself";
  const std::string old(text.View());
  text.Format(format, text, text);
  EXPECT_EQ(text.View(), old + '-' + old);
}

TEST(String, KeepsItsLengthWhileItsBufferIsLent) {
  for (const std::string original : {"", "short", "fifteen bytes..", "longer than what fits in the object"}) {
    for (const std::size_t room : {0U, 14U, 15U, 16U, 100U}) {
      CString text(original);
      const CString copy(text);
      const std::string written =
          original + std::string(std::max(room, original.size()) - original.size(), 'x');
      char* const bytes = text.GetBuffer(static_cast<int>(room));
      EXPECT_EQ(bytes, original);
      std::strcpy(bytes, written.c_str());
      EXPECT_EQ(text.View(), original);
      text.ReleaseBuffer();
      EXPECT_EQ(text.View(), written);
      EXPECT_EQ(copy.View(), original);
    }
  }
}

TEST(String, ReleasesItsBufferOnlyUpToItsSize) {
  CString text("ab");
  EXPECT_THROW(text.ReleaseBuffer(3), CInvalidArgException);
  std::fill_n(text.GetBuffer(5), 5, 'c');
  EXPECT_THROW(text.ReleaseBuffer(6), CInvalidArgException);
  EXPECT_THROW(text.ReleaseBuffer(-2), CInvalidArgException);
  EXPECT_EQ(text.GetBuffer(500), std::string("ccccc"));  // what was written is kept as the buffer grows
  text.ReleaseBuffer(4);
  EXPECT_EQ(text, "cccc");
  text.ReleaseBuffer(1);
  EXPECT_EQ(text, "c");
  EXPECT_THROW(text.ReleaseBuffer(2), CInvalidArgException);
}

TEST(String, TakesStandardStrings) {
  CString text;
  text = std::string("a\0b", 3);
  EXPECT_EQ(text.GetLength(), 3);
  text = std::string_view("c");
  EXPECT_EQ(text, "c");
}

}  // namespace
}  // namespace kestrin
