#pragma once

/// @file
/// Comparing the two readers of the Traces file.

#include <string_view>

#include "kestrin/traces/traces_model.h"

namespace kestrin::fuzz {

/// Whether the line reader and the strict reader must read the text in the same way. That is so if each
/// record is on its own line; its values are tokens of the grammar, separated by blanks, and not longer than
/// the strict reader keeps; and numbers are written in the form in which they are printed.
[[nodiscard]] bool IsPlain(std::string_view text);

/// Removes what the readers do differently by design. The strict reader starts a new fill when the names
/// change, and gives TTI records the names of the last area instead of the fill. So this moves all areas,
/// islands and TTI records to one fill at the end of the list, in file order, and clears those names.
void RemoveDifferences(CMTraces& traces);

}  // namespace kestrin::fuzz
