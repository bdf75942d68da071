#include "kestrin/records/ex_ptr_array.h"

#include <gtest/gtest.h>

#include <climits>
#include <memory>
#include <vector>

#include "kestrin/records/ownership.h"
#include "tests/support/lists.h"

namespace kestrin {
namespace {

using test::Elements;

/// A record that logs its name when it is deleted.
struct Record {
  Record(char newName, std::string& newLog) : name(newName), log(newLog) {}
  Record(const Record&) = delete;
  Record& operator=(const Record&) = delete;
  virtual ~Record() { log += name; }
  char name;
  std::string& log;
};

class Array : public CExPtrArray<Record*, Record*> {
 public:
  Array() = default;
  Array(std::initializer_list<Record*> records) {
    for (Record* record : records) Add(record);
  }
};

class ExPtrArray : public testing::Test {
 protected:
  static Record* New(char name, std::string& log) { return std::make_unique<Record>(name, log).release(); }

  std::string deleted_;
  std::string ignored_;
  Record a_{'a', ignored_}, b_{'b', ignored_}, c_{'c', ignored_}, d_{'d', ignored_}, x_{'x', ignored_};
  Record *a = &a_, *b = &b_, *c = &c_, *d = &d_, *x = &x_;
};

using Records = std::vector<Record*>;

TEST_F(ExPtrArray, ReturnsNullFalseOrMinusOneForWhatItDoesNotHave) {
  Array array{a, b, a};
  EXPECT_EQ(array.GetAt(1), b);
  EXPECT_EQ(array.GetAt(-1), nullptr);
  EXPECT_EQ(array.GetAt(3), nullptr);
  array.SetAt(3, c);
  array.SetAt(1, c);
  EXPECT_EQ(Elements(array), (Records{a, c, a}));
  EXPECT_EQ(array.FindIndex(a), 0);
  EXPECT_EQ(array.FindIndex(b), -1);
  EXPECT_FALSE(array.Exists(d));
  EXPECT_EQ(array.Add_if_only_do_not_exists(a), -1);
  EXPECT_EQ(array.Add_if_only_do_not_exists(b), 3);
  EXPECT_TRUE(array.IsValidIndex(3));
  EXPECT_FALSE(array.IsValidIndex(4));
  EXPECT_FALSE(array.IsValidIndex(-1));
  EXPECT_EQ(array.GetLastElement(), b);
  EXPECT_EQ(array.GetLastIndex(), 3);
  Array empty;
  EXPECT_EQ(empty.GetLastElement(), nullptr);
  EXPECT_EQ(empty.GetLastIndex(), -1);
  EXPECT_EQ(empty.RemoveLastElement(), nullptr);
  EXPECT_FALSE(empty.DeleteLastElement());
  EXPECT_FALSE(empty.Remove(a));
  EXPECT_FALSE(empty.Delete(a));
  EXPECT_TRUE(empty.IsElementEqual(Array()));
  EXPECT_FALSE(array.IsElementEqual(Array{a, c, b, a}));
}

TEST_F(ExPtrArray, RemovesWithoutDeleting) {
  Array nulls{a, nullptr, b, nullptr};
  nulls.RemoveNullElement();
  EXPECT_EQ(Elements(nulls), (Records{a, b}));
  Array duplicates{a, b, a, c, b};
  duplicates.RemoveDuplicatedElements();
  EXPECT_EQ(Elements(duplicates), (Records{a, b, c}));
  Array minuend{a, b, a};
  minuend.Subtract(Array{a, a, a, d});
  EXPECT_EQ(Elements(minuend), (Records{b}));
  minuend.Subtract(minuend);
  EXPECT_TRUE(minuend.IsEmpty());
  Array array{a, b, a};
  EXPECT_TRUE(array.Remove(a));
  EXPECT_EQ(Elements(array), (Records{b, a}));
  EXPECT_EQ(array.RemoveLastElement(), a);
  Array reversed{a, b, c};
  reversed.Reverse();
  EXPECT_EQ(Elements(reversed), (Records{c, b, a}));
  EXPECT_EQ(ignored_, "");
}

TEST_F(ExPtrArray, MovesARangeToTheEndOfAnother) {
  Array source{a, b, c, d};
  Array target{x};
  EXPECT_FALSE(source.MoveElementTo(target, 2, 1));
  for (const auto& [first, last] : std::vector<std::pair<int, int>>{{-1, 1}, {2, 4}, {0, INT_MAX}, {4, 4}}) {
    EXPECT_THROW(source.MoveElementTo(target, first, last), CInvalidArgException);
  }
  EXPECT_EQ(Elements(source), (Records{a, b, c, d}));
  EXPECT_EQ(Elements(target), (Records{x}));
  EXPECT_TRUE(source.MoveElementTo(target, 1, 2));
  EXPECT_EQ(Elements(source), (Records{a, d}));
  EXPECT_EQ(Elements(target), (Records{x, b, c}));
  EXPECT_TRUE(target.MoveElementTo(target, 0, 0));
  EXPECT_EQ(Elements(target), (Records{b, c, x}));
}

TEST_F(ExPtrArray, DeletesOnlyByItsDeleteOperations) {
  Array array;
  for (const char name : {'1', '2', '3', '4', '5', '6'}) array.Add(New(name, deleted_));
  array.InsertAt(1, static_cast<Record*>(nullptr));
  EXPECT_TRUE(array.Delete(array.GetAt(2)));
  array.DeleteAt(0, 2);
  array.DeleteAt(0, 0);
  EXPECT_TRUE(array.DeleteLastElement());
  EXPECT_EQ(deleted_, "216");
  EXPECT_THROW(array.DeleteAt(3), CInvalidArgException);
  EXPECT_THROW(array.DeleteAt(-1), CInvalidArgException);
  EXPECT_THROW(array.DeleteAt(2, 2), CInvalidArgException);
  EXPECT_EQ(deleted_, "2165");
  array.DeleteAll();
  EXPECT_EQ(deleted_, "216534");
  EXPECT_EQ(array.GetData(), nullptr);
}

/// A record that logs the names of all records in its array when it is deleted.
struct Observer : Record {
  Observer(char newName, std::string& newLog, Array& newArray) : Record(newName, newLog), array(newArray) {}
  Observer(const Observer&) = delete;
  Observer& operator=(const Observer&) = delete;
  ~Observer() override {
    for (const Record* record : array) log += record == nullptr ? '-' : record->name;
    log += ' ';
  }
  Array& array;
};

TEST_F(ExPtrArray, DestructorsSeeTheirRecordInTheArrayButNoneDeletedBefore) {
  struct Case {
    void (*remove)(Array&);
    std::string seen;  // for each destructor: the contents of the array, then the record's name
  };
  const Case cases[] = {
      {[](Array& array) { array.Delete(array.GetAt(1)); }, "12345 2"},
      {[](Array& array) { array.DeleteLastElement(); }, "12345 5"},
      {[](Array& array) { array.DeleteAt(1); }, "12345 2"},
      {[](Array& array) { array.DeleteAt(1, 3); }, "12345 21-345 31--45 4"},
      {[](Array& array) { EXPECT_THROW(array.DeleteAt(3, 3), CInvalidArgException); }, "12345 4123-5 5"},
      {[](Array& array) { array.DeleteAll(); }, "12345 1-2345 2--345 3---45 4----5 5"},
  };
  for (const Case& c : cases) {
    Array array;
    for (const char name : {'1', '2', '3', '4', '5'}) {
      array.Add(std::make_unique<Observer>(name, deleted_, array).release());
    }
    c.remove(array);
    EXPECT_EQ(deleted_, c.seen);
    array.DeleteAll();
    deleted_.clear();
  }
}

TEST_F(ExPtrArray, OwningArraysDeleteTheirRecordsOnce) {
  {
    Owning<Array> array;
    array.Add(New('1', deleted_));
    array.Add(nullptr);
    array.Add(New('2', deleted_));
  }
  EXPECT_EQ(deleted_, "12");
}

}  // namespace
}  // namespace kestrin
