#include "kestrin/text/value_kinds.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrin {
namespace {

using enum NumberKind;

std::string KindsThatAccept(std::string_view text) {
  std::string letters;
  if (IsWhollyNumber(text, kDecimal)) letters += 'd';
  if (IsWhollyNumber(text, kWhole)) letters += 'i';
  if (IsWhollyNumber(text, kTruncated)) letters += 't';
  return letters;
}

TEST(ValueKinds, ANumberIsWhollyOneIfNothingIsLostWhenItIsRead) {
  struct Case {
    std::string_view text;
    std::string_view kinds;
  };
  const Case cases[] = {
      {"7", "dit"},
      {"-7", "dit"},
      {"+7", "dit"},
      {" 7\t", "dit"},
      {"007", "dit"},
      {"28.0", "dit"},
      {"28.", "dit"},
      {"-28.000", "dit"},
      {".0", "dit"},
      {"22.5", "d"},
      {".5", "d"},
      {"-.5", "d"},
      {"1e2", "dt"},
      {"1.5e1", "dt"},
      {"1E+2", "dt"},
      {"10e-1", "dt"},
      {"1.0e0", "dit"},
      {"1e-2", "d"},
      {"1e999", "dt"},
      {"99999999999", "dit"},
      {"99999999999.0", "dt"},
      {"22,5", ""},
      {"abc", ""},
      {"", ""},
      {" ", ""},
      {"-", ""},
      {".", ""},
      {"1e", ""},
      {"1e+", ""},
      {"--1", ""},
      {"+-1", ""},
      {"- 1", ""},
      {"1 2", ""},
      {"2.5mm", ""},
      {"1.2.3", ""},
      {"0x10", ""},
      {"inf", ""},
      {"nan", ""},
      {"'7'", ""},
      {"\"7\"", ""},
      {"7]", ""},
  };
  for (const Case& c : cases) EXPECT_EQ(KindsThatAccept(c.text), c.kinds) << '"' << c.text << '"';
}

TEST(ValueKinds, TheFormOfALineDependsOnItsNumberOfValues) {
  static constexpr ValueKinds kKinds(ValueKinds::Form{OneOf(2, 4), "d.it"},
                                     ValueKinds::Form{AtLeast(5), ".d"});
  struct Case {
    std::string line;
    std::string shown;
  };
  const Case cases[] = {
      {"K a", ""},           {"K a b", "1a"}, {"K a b c", ""}, {"K a b c d", "1a3c4d"},
      {"K a b c d e", "2b"}, {"K", ""},
  };
  for (const Case& c : cases) {
    LineFields fields;
    fields.Begin(c.line);
    std::string shown;
    kKinds.ForEachMisreadNumber(ValuesFrom(fields, 1), [&](int position, std::string_view text, NumberKind) {
      shown.append(std::to_string(position)).append(text);
    });
    EXPECT_EQ(shown, c.shown) << c.line;
  }
}

}  // namespace
}  // namespace kestrin
