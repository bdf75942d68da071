#pragma once

/// @file
/// The words of layers and units that reading a board compares with.

#include "kestrin/text/format_words.h"

namespace kestrin {

void ForEachLayerWord(const FormatWordVisitor& visit);
void ForEachUnitWord(const FormatWordVisitor& visit);

}  // namespace kestrin
