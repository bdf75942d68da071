#include "kestrin/base/numbers.h"

#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <string>

namespace kestrin {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();

TEST(Numbers, IntReadsTheLongestDecimalPrefix) {
  struct Case {
    const char* text;
    int expected;
  };
  const Case cases[] = {
      {"", 0},
      {"x", 0},
      {" \t\v7", 7},
      {"-12.7", -12},
      {"+3a", 3},
      {"- 3", 0},
      {"--3", 0},
      {"0x10", 0},
      {"2147483647", INT_MAX},
      {"2147483648", INT_MAX},
      {"-2147483648", INT_MIN},
      {"-99999999999999999999999999", INT_MIN},
  };
  for (const Case& c : cases) EXPECT_EQ(ToInt(c.text), c.expected) << c.text;
}

TEST(Numbers, DoubleReadsTheLongestDecimalPrefix) {
  struct Case {
    const char* text;
    double expected;
  };
  const Case cases[] = {
      {"", 0},
      {".", 0},
      {"-.", 0},
      {" .5", 0.5},
      {"5.", 5},
      {"+1.5e2x", 150},
      {"1e", 1},
      {"1e+", 1},
      {"1.2.3", 1.2},
      {"0x10", 0},
      {"inf", 0},
      {"nan", 0},
      {"-infinity", 0},
      {"1,5", 1},
      {"1e400", kInfinity},
      {"-1e400", -kInfinity},
      {"1e-400", 0},
      {"1E-400", 0},
      {"1e-310", 1e-310},
      {"4.9e-324", 4.9e-324},
      {"1e99999999999999999999", kInfinity},
      {"1e-99999999999999999999", 0},
      {"0e99999", 0},
  };
  for (const Case& c : cases) EXPECT_EQ(ToDouble(c.text), c.expected) << c.text;
  EXPECT_TRUE(std::signbit(ToDouble("-0")));
  const std::string zeros = "0." + std::string(400, '0');
  EXPECT_EQ(ToDouble(zeros + "1e401"), 1.0);
  EXPECT_EQ(ToDouble(zeros + "1e300"), 1e-101);
  EXPECT_EQ(ToDouble(zeros + "1e800"), kInfinity);
  EXPECT_EQ(ToDouble("0." + std::string(500, '9') + "e-400"), 0.0);
  EXPECT_EQ(ToDouble(zeros + "1.5e800"), 0.0);  // the number ends before the second point
  EXPECT_EQ(ToDouble(std::string(400, '9')), kInfinity);
  EXPECT_EQ(ToDouble(std::string(400, '9') + "e-395"), 100000.0);
  EXPECT_EQ(ToDouble(std::string(400, '9') + "e -500"), kInfinity);
}

TEST(Numbers, DoubleToIntTruncatesAndSaturates) {
  EXPECT_EQ(ToInt(-2.9), -2);
  EXPECT_EQ(ToInt(3e9), INT_MAX);
  EXPECT_EQ(ToInt(-kInfinity), INT_MIN);
  EXPECT_EQ(ToInt(std::nan("")), 0);
}

}  // namespace
}  // namespace kestrin
