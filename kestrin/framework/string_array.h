#pragma once

/// @file
/// The framework's array of strings.

#include <cstdint>
#include <string>
#include <string_view>

#include "kestrin/framework/array.h"
#include "kestrin/framework/string.h"

namespace kestrin {

/// An array of strings. Indexes are checked as in CArray.
class CStringArray : public CArray<CString, const CString&> {
 public:
  using CArray::Add;
  ///@{
  /// Appends a copy of the text and returns its index.
  std::int64_t Add(std::string_view text) { return Emplace(text); }
  std::int64_t Add(const char* text) { return Emplace(text); }
  std::int64_t Add(const std::string& text) { return Emplace(text); }
  ///@}
};

}  // namespace kestrin
