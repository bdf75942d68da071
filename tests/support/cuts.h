#pragma once

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "kestrin/framework/string_array.h"
#include "tests/support/lists.h"

namespace kestrin::test {

/// A line and its fields.
struct Cut {
  std::string line;
  std::vector<std::string> fields;
};

/// Expects the function to append the fields of each line to an array.
template <class Function>
void ExpectCuts(const std::vector<Cut>& cuts, Function cutLine) {
  for (const Cut& cut : cuts) {
    CStringArray fields;
    fields.Add("kept");
    cutLine(cut.line, fields);
    std::vector<std::string> expected = cut.fields;
    expected.insert(expected.begin(), "kept");
    EXPECT_EQ(Strings(fields), expected) << cut.line;
  }
}

}  // namespace kestrin::test
