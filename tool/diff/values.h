#pragma once

/// @file
/// Comparing values.

#include <string>
#include <string_view>
#include <vector>

#include "tool/diff/difference.h"

namespace kestrin::tool {

/// Whether two texts are equal, or are numbers that are: "28" and "28.0".
[[nodiscard]] bool AreEqual(std::string_view before, std::string_view after);

///@{
/// Appends a detail if the values differ. An empty text counts as nothing.
void CompareValue(std::vector<Detail>& details, const char* what, double before, double after);
void CompareValue(std::vector<Detail>& details, std::string_view what, std::string_view before,
                  std::string_view after);
///@}

/// A number as people write it.
[[nodiscard]] std::string TextOf(double number);

/// A value as a text for people; "none" for nothing.
[[nodiscard]] std::string TextOf(const Value& value);

}  // namespace kestrin::tool
