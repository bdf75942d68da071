#include "kestrin/framework/array.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <limits>
#include <stdexcept>
#include <string>
#include <vector>

#include "kestrin/framework/string_array.h"
#include "tests/support/lists.h"

namespace kestrin {
namespace {

using test::Elements;
using test::Strings;

struct Numbers : CArray<std::intptr_t, std::intptr_t> {
  Numbers() = default;
  Numbers(std::initializer_list<std::intptr_t> values) {
    for (const auto value : values) Add(value);
  }
  [[nodiscard]] std::int64_t Capacity() const { return m_nMaxSize; }
};
using List = std::vector<std::intptr_t>;

TEST(Array, GrowsInTheFrameworksSteps) {
  Numbers array;
  std::vector<std::int64_t> capacities;
  for (int i = 0; i < 60; ++i) {
    array.Add(i);
    if (capacities.empty() || capacities.back() != array.Capacity()) capacities.push_back(array.Capacity());
  }
  EXPECT_EQ(capacities, (std::vector<std::int64_t>{1, 5, 9, 13, 17, 21, 25, 29, 33, 37, 41, 46, 51, 57, 64}));

  array.SetSize(20000);
  EXPECT_EQ(array.Capacity(), 20000);
  array.Add(1);
  EXPECT_EQ(array.Capacity(), 21024);
  array.SetSize(3);
  EXPECT_EQ(array.Capacity(), 21024);
  array.FreeExtra();
  EXPECT_EQ(array.Capacity(), 3);
  EXPECT_EQ(Elements(array), (List{0, 1, 2}));
  array.RemoveAll();
  EXPECT_EQ(array.Capacity(), 0);
  EXPECT_EQ(array.GetData(), nullptr);
}

TEST(Array, KeepsAGrowthStepOfItsOwn) {
  Numbers array;
  array.SetSize(1, 10);
  EXPECT_EQ(array.Capacity(), 10);
  array.SetSize(11);
  EXPECT_EQ(array.Capacity(), 20);
  array.SetSize(40);
  EXPECT_EQ(array.Capacity(), 40);
  array.SetSize(41, 0);
  EXPECT_EQ(array.Capacity(), 45);
  EXPECT_THROW(array.SetSize(46, std::numeric_limits<std::int64_t>::max()), std::bad_alloc);
  array.SetSize(46);
  EXPECT_EQ(array.Capacity(), 50);
}

TEST(Array, AppendingMillionsKeepsEveryElement) {
  Numbers array;
  constexpr std::intptr_t kCount = 3'000'000;
  for (std::intptr_t i = 0; i < kCount; ++i) array.Add(i);
  ASSERT_EQ(array.GetSize(), kCount);
  for (std::intptr_t i = 0; i < kCount; ++i) ASSERT_EQ(array[i], i);
}

TEST(Array, RaisesForIndexesOutsideAndIsUnchanged) {
  constexpr auto kHuge = std::numeric_limits<std::int64_t>::max();
  Numbers array{1, 2, 3};
  const Numbers other{4};
  EXPECT_THROW(static_cast<void>(array[3]), CInvalidArgException);
  EXPECT_THROW(static_cast<void>(array.GetAt(-1)), CInvalidArgException);
  EXPECT_THROW(array.SetAt(3, 0), CInvalidArgException);
  EXPECT_THROW(array.SetAtGrow(-1, 0), CInvalidArgException);
  EXPECT_THROW(array.SetSize(-1), CInvalidArgException);
  EXPECT_THROW(array.Append(array), CInvalidArgException);
  EXPECT_THROW(array.InsertAt(-1, 9, 1), CInvalidArgException);
  EXPECT_THROW(array.InsertAt(0, 9, 0), CInvalidArgException);
  EXPECT_THROW(array.InsertAt(-1, &other), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(2, 2), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(1, kHuge), CInvalidArgException);
  EXPECT_THROW(array.RemoveAt(0, -1), CInvalidArgException);
  EXPECT_THROW(array.SetSize(kHuge), std::bad_alloc);
  EXPECT_THROW(array.SetAtGrow(kHuge, 0), std::bad_alloc);
  EXPECT_THROW(array.InsertAt(kHuge, 9, 2), std::bad_alloc);
  EXPECT_EQ(Elements(array), (List{1, 2, 3}));
}

TEST(Array, InsertsRemovesAppendsAndCopies) {
  Numbers array{1, 2, 3};
  array.InsertAt(1, 9, 2);
  EXPECT_EQ(Elements(array), (List{1, 9, 9, 2, 3}));
  array.RemoveAt(0, 2);
  EXPECT_EQ(Elements(array), (List{9, 2, 3}));
  array.InsertAt(5, 7);
  EXPECT_EQ(Elements(array), (List{9, 2, 3, 0, 0, 7}));
  array.SetAtGrow(7, 8);
  EXPECT_EQ(Elements(array), (List{9, 2, 3, 0, 0, 7, 0, 8}));

  Numbers other{4, 5};
  other.InsertAt(1, &other);
  EXPECT_EQ(Elements(other), (List{4, 4, 5, 5}));
  EXPECT_EQ(array.Append(other), 8);
  EXPECT_EQ(array.GetUpperBound(), 11);
  other.Copy(other);
  array.Copy(other);
  EXPECT_EQ(Elements(array), (List{4, 4, 5, 5}));
}

/// A value that cannot be moved, and copied only a limited number of times.
class CostlyValue {
 public:
  CostlyValue() { ++alive; }
  explicit CostlyValue(int newNumber) : number(newNumber) { ++alive; }
  CostlyValue(const CostlyValue& other) : number(other.number) {
    Spend();
    ++alive;
  }
  CostlyValue& operator=(const CostlyValue& other) {
    Spend();
    number = other.number;
    return *this;
  }
  ~CostlyValue() { --alive; }

  int number = 0;
  static inline int alive = 0;
  static inline int copiesLeft = 0;

 private:
  static void Spend() {
    if (--copiesLeft < 0) throw std::runtime_error("no copies left");
  }
};

using CostlyArray = CArray<CostlyValue, CostlyValue&>;

std::vector<int> NumbersOf(const CostlyArray& array) {
  std::vector<int> numbers;
  for (const CostlyValue& value : array) numbers.push_back(value.number);
  return numbers;
}

/// Changes an array of the numbers 1 to 5, allowing one more copy each time until the change succeeds.
template <class Change>
void TryWithEverMoreCopies(bool undoes, Change change, const std::vector<int>& expected) {
  for (int copies = 0;; ++copies) {
    {
      CostlyValue::copiesLeft = 1000;
      CostlyArray array;
      for (int i = 1; i <= 5; ++i) {
        CostlyValue value(i);
        array.Add(value);
      }
      CostlyValue::copiesLeft = copies;
      try {
        change(array);
        EXPECT_EQ(NumbersOf(array), expected);
        ASSERT_GT(copies, 0);
        return;
      } catch (const std::runtime_error&) {
        EXPECT_TRUE(!undoes || NumbersOf(array) == (std::vector<int>{1, 2, 3, 4, 5})) << copies;
      }
    }
    ASSERT_EQ(CostlyValue::alive, 0);
  }
}

TEST(Array, StaysValidIfCopyingAnElementThrows) {
  constexpr bool kUndoes = true;
  using Values = std::vector<int>;
  TryWithEverMoreCopies(
      kUndoes, [](CostlyArray& array) { array.Add(array[0]); }, Values{1, 2, 3, 4, 5, 1});
  TryWithEverMoreCopies(
      kUndoes, [](CostlyArray& array) { array.SetAtGrow(5, array[0]); }, Values{1, 2, 3, 4, 5, 1});
  TryWithEverMoreCopies(
      kUndoes, [](CostlyArray& array) { array.SetSize(7); }, Values{1, 2, 3, 4, 5, 0, 0});
  TryWithEverMoreCopies(
      !kUndoes,
      [](CostlyArray& array) {
        array.RemoveAt(4);
        array.FreeExtra();
      },
      Values{1, 2, 3, 4});
  TryWithEverMoreCopies(
      !kUndoes,
      [](CostlyArray& array) {
        CostlyArray other;
        other.Copy(array);
        array.Append(other);
        array.InsertAt(1, other[4], 2);
        array.InsertAt(0, &array);
        array.RemoveAt(3, 20);
      },
      Values{1, 5, 5, 5});
}

TEST(StringArray, TakesItsOwnElements) {
  CStringArray array;
  array.Add("ten bytes.");
  for (int i = 0; i < 20; ++i) array.Add(array[0]);
  for (int i = 0; i < 20; ++i) array.Add(array[0].GetString());
  for (int i = 0; i < 20; ++i) array.Add(array[0].View());
  for (int i = 0; i < 20; ++i) array.SetAtGrow(array.GetSize(), array[0]);
  for (int i = 0; i < 20; ++i) array.InsertAt(0, array[0]);
  array.SetAt(0, array[0]);
  for (const CString& string : array) EXPECT_EQ(string, "ten bytes.");
}

TEST(StringArray, KeepsValuesThroughGrowthAndGaps) {
  CStringArray array;
  for (int i = 0; i < 50; ++i)
    array.SetAtGrow(i, CString(std::to_string(i) + " is longer than fits in place"));
  array.Add(array[0]);
  EXPECT_EQ(array[50], array[0]);
  array.RemoveAt(0, 0);
  array.SetSize(2);
  array.InsertAt(1, "new");
  array.SetAtGrow(4, "last");
  EXPECT_EQ(Strings(array), (std::vector<std::string>{"0 is longer than fits in place", "new",
                                                      "1 is longer than fits in place", "", "last"}));
}

}  // namespace
}  // namespace kestrin
