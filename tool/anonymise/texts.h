#pragma once

/// @file
/// The places of texts for people: part numbers, values of properties, drawn texts, comments.

#include <string_view>
#include <vector>

#include "kestrin/session/import_report.h"
#include "tool/anonymise/letters.h"

namespace kestrin::tool {

/// A text for people in a line.
struct TextPlace {
  Span span;
  bool isComment = false;  ///< no reader looks at it at all
};

/// Finds the texts of a line and replaces the list with them. No reader takes a number from a text.
void FindTexts(ImportFile file, std::string_view line, std::vector<TextPlace>& texts);

}  // namespace kestrin::tool
