#pragma once

#include <string>
#include <vector>

#include "kestrin/framework/string_array.h"

namespace kestrin::test {

inline std::vector<std::string> Strings(const CStringArray& array) {
  std::vector<std::string> strings;
  for (const CString& string : array) strings.emplace_back(string.View());
  return strings;
}

template <class TYPE, class ARG_TYPE>
std::vector<TYPE> Elements(const CArray<TYPE, ARG_TYPE>& array) {
  return {array.begin(), array.end()};
}

}  // namespace kestrin::test
