#include "kestrin/board/names.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "kestrin/board/board.h"

namespace kestrin {
namespace {

TEST(BoardNames, CompareWithoutApostrophesAndOuterBlanks) {
  struct Case {
    const char* name;
    const char* compared;
    const char* reference;
  };
  const Case cases[] = {
      {"", "", ""},
      {"GND", "GND", "GND"},
      {"'VCC 3V3'", "VCC 3V3", "VCC_3V3"},
      {"  ' A B '  ", "A B", "A_B"},
      {"gnd", "gnd", "gnd"},
      {"D'1", "D'1", "D'1"},
      {"''", "", ""},
      {"A\t", "A\t", "A\t"},
      {"\"A\"", "\"A\"", "\"A\""},
  };
  for (const Case& c : cases) {
    EXPECT_EQ(ComparedName(c.name), c.compared) << c.name;
    EXPECT_EQ(ComparedReference(c.name), c.reference) << c.name;
  }
}

/// Names that all have the same slot in any hash table of up to 65,536 slots.
std::vector<std::string> CollidingNames(std::size_t count) {
  std::vector<std::string> names;
  for (int i = 0; names.size() < count; ++i) {
    std::string name = "N" + std::to_string(i);
    if (HashOf(name) % 65536 == 0) names.push_back(std::move(name));
  }
  return names;
}

TEST(NameIndex, KeepsTheFirstOfEqualNamesEvenIfNamesCollide) {
  std::vector<std::string> names = CollidingNames(40);
  for (int i = 0; i < 5000; ++i) names.push_back("M" + std::to_string(i));
  NameIndex index;
  EXPECT_EQ(index.Find("N"), std::nullopt);
  for (Index i = 0; i < names.size(); ++i) EXPECT_EQ(index.Add(names[i], i), i);
  for (Index i = 0; i < names.size(); ++i) {
    EXPECT_EQ(index.Find(names[i]), i) << names[i];
    EXPECT_EQ(index.Add(names[i], i + 1), i) << names[i];
  }
  EXPECT_EQ(index.Find("N"), std::nullopt);
  EXPECT_EQ(index.Find(""), std::nullopt);
}

}  // namespace
}  // namespace kestrin
