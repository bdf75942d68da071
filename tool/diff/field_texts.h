#pragma once

/// @file
/// The contents of records as texts that are equal if the records are.

#include <algorithm>
#include <string>
#include <type_traits>
#include <utility>
#include <vector>

#include "kestrin/framework/string_array.h"
#include "kestrin/records/fields.h"
#include "kestrin/records/ownership.h"
#include "tool/diff/values.h"

namespace kestrin::tool {

[[nodiscard]] inline std::string ContentOf(double number) { return TextOf(number); }
[[nodiscard]] inline std::string ContentOf(const CString& text) { return std::string(text.View()); }

template <HasFields Record>
[[nodiscard]] std::string ContentOf(const Record& record);
template <class Type, class ArgType>
[[nodiscard]] std::string ContentOf(const CArray<Type, ArgType>& list);

/// The content of what a pointer points to.
template <class T>
[[nodiscard]] std::string ContentOf(const T* pointer) {
  return pointer == nullptr ? std::string() : ContentOf(*pointer);
}

/// The elements of a list. The order of numbers and texts counts, that of records does not.
template <class Type, class ArgType>
std::string ContentOf(const CArray<Type, ArgType>& list) {
  std::vector<std::string> contents;
  for (const Type& element : list) contents.push_back(ContentOf(element));
  if constexpr (std::is_pointer_v<Type>) std::sort(contents.begin(), contents.end());
  std::string joined;
  for (const std::string& content : contents) joined += (joined.empty() ? "" : "; ") + content;
  return joined;
}

template <HasFields Record>
std::string ContentOf(const Record& record) {
  std::string joined;
  ForEachField(record, [&](const char*, const auto& value) {
    joined += (joined.empty() ? "" : ", ") + ContentOf(value);
  });
  return joined;
}

/// The names and contents of a record's fields.
template <HasFields Record>
[[nodiscard]] std::vector<std::pair<const char*, std::string>> FieldTextsOf(const Record& record) {
  std::vector<std::pair<const char*, std::string>> texts;
  ForEachField(record,
               [&](const char* name, const auto& value) { texts.emplace_back(name, ContentOf(value)); });
  return texts;
}

}  // namespace kestrin::tool
