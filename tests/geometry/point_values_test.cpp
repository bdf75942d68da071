#include "kestrin/geometry/point_values.h"

#include <gtest/gtest.h>

#include <string>
#include <tuple>
#include <vector>

namespace kestrin {
namespace {

using Numbers = std::vector<std::tuple<double, bool, Bracket>>;

template <class Next>
Numbers Read(std::string_view text, Next next) {
  ValueCut cut(text, Commas::kEvery);
  Numbers numbers;
  while (const auto value = next(cut)) numbers.emplace_back(value->number, value->isEmpty, value->bracket);
  return numbers;
}

/// Plain values have a fast path. Its results must equal those of the general path.
TEST(PointValues, AreTheSameOnTheFastAndTheGeneralPath) {
  const std::string pieces[] = {"", " ", "[", "]", "1", "-2.5", "\"", "x", "1e2", "\t"};
  std::string text;
  for (const std::string& a : pieces) {
    for (const std::string& b : pieces) {
      for (const std::string& c : pieces) {
        for (const std::string& d : pieces) text.append(",").append(a).append(b).append(c).append(d);
      }
    }
  }
  EXPECT_EQ(Read(text, NextPointValue), Read(text, NextAnyPointValue));
  EXPECT_EQ(
      Read("[1, 2],,3", NextPointValue),
      (Numbers{{1, false, Bracket::kOpening}, {2, false, Bracket::kClosing}, {3, false, Bracket::kNone}}));
}

TEST(PointValues, AreFoundWhateverWasReadBefore) {
  const std::string_view text = "A,B,,1,2,3";
  for (std::size_t from = 1; from <= 8; ++from) {
    for (std::size_t asked = 0; asked <= 8; ++asked) {
      Values values;
      values.Cut(text, Commas::kEvery);
      static_cast<void>(values.HasAtLeast(asked));
      ValueCut cut = values.From(from);
      for (std::size_t number = from; number <= 5; ++number) {
        EXPECT_EQ(cut.Next(), values.Raw(number)) << from << " after " << asked;
      }
      EXPECT_FALSE(cut.Next());
    }
  }
}

}  // namespace
}  // namespace kestrin
