#pragma once

/// @file
/// Comparing values.

#include <string>
#include <string_view>
#include <vector>

#include "tool/diff/difference.h"

namespace kestrin::tool {

/// Whether two values of files are equal: as texts, or as numbers, such as "28" and "28.0".
[[nodiscard]] bool AreEqual(std::string_view before, std::string_view after);

/// A text as a value; nothing if it is empty.
[[nodiscard]] Value ValueOf(std::string_view text);

/// The content of a field as a value; nothing if it is too long to be shown, such as that of a drawing.
[[nodiscard]] Value ShownValueOf(std::string_view content);

///@{
/// Appends a detail if numbers or names differ. Names are compared as texts: "0603" is not "603".
void CompareValue(std::vector<Detail>& details, const char* what, double before, double after);
void CompareName(std::vector<Detail>& details, const char* what, std::string_view before,
                 std::string_view after);
///@}

/// A number as people write it.
[[nodiscard]] std::string TextOf(double number);

/// A value as a text for people; "none" for nothing.
[[nodiscard]] std::string TextOf(const Value& value);

}  // namespace kestrin::tool
