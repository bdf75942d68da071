#include "kestrin/text/value_count.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrin {
namespace {

TEST(ValueCount, AcceptsTheNumbersThatItsTextNames) {
  struct Case {
    ValueCount count;
    std::string accepted;  // those of the numbers 0 to 9
    std::string text;
  };
  const Case cases[] = {
      {Any(), "0123456789", "at least 0 values"},  {AtLeast(1), "123456789", "at least 1 value"},
      {AtLeast(5), "56789", "at least 5 values"},  {Exactly(1), "1", "exactly 1 value"},
      {Exactly(8), "8", "exactly 8 values"},       {OneOf(3, 7), "37", "3 or 7 values"},
      {OneOf(4, 6, 8), "468", "4, 6 or 8 values"},
  };
  for (const Case& c : cases) {
    std::string accepted;
    for (std::size_t count = 0; count < 10; ++count)
      accepted += c.count.Accepts(count) ? std::to_string(count) : "";
    EXPECT_EQ(accepted, c.accepted) << c.text;
    EXPECT_EQ(c.count.Text(), c.text);
    EXPECT_EQ(c.count.Accepts(64 + 8), c.count.IsOpenEnded()) << c.text;
  }
}

}  // namespace
}  // namespace kestrin
