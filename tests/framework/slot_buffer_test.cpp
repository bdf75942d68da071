#include "kestrin/framework/slot_buffer.h"

#include <gtest/gtest.h>

namespace kestrin {
namespace {

TEST(SlotBuffer, GrowsByPowersOfTwoAndThenByEighthsIfAnArrayGrowsByOne) {
  struct Case {
    std::int64_t capacity;
    std::int64_t slots;
  };
  const Case cases[] = {
      {0, 0},     {1, 5},     {2, 2},     {4, 4},       {5, 5},       {6, 6},
      {8, 8},     {9, 16},    {12, 12},   {13, 16},     {17, 32},     {33, 64},
      {57, 64},   {60, 60},   {64, 64},   {65, 72},     {72, 72},     {73, 80},
      {127, 128}, {128, 128}, {129, 144}, {8192, 8192}, {8193, 9216}, {1'000'003, 1'048'576},
  };
  for (const Case& c : cases) EXPECT_EQ(AllocatedSlots(c.capacity), c.slots) << c.capacity;
}

}  // namespace
}  // namespace kestrin
