#pragma once

/// @file
/// The words that parts of the Geometry reader compare with. GeometryReader::ForEachWord has all of them.

#include "kestrin/text/format_words.h"

namespace kestrin {

void ForEachAttributeWord(const FormatWordVisitor& visit);
void ForEachDrawingWord(const FormatWordVisitor& visit);
void ForEachPageWord(const FormatWordVisitor& visit);
void ForEachTextWord(const FormatWordVisitor& visit);

}  // namespace kestrin
