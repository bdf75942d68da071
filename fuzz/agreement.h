#pragma once

/// @file
/// Where the two readers of the Traces file must make the same of a file.

#include <string_view>

#include "kestrin/traces/traces_model.h"

namespace kestrin::fuzz {

/// Whether a text says the same to the reader of lines and to the reader of tokens: every record stands on a
/// line of its own, its values are tokens of the grammar between blanks, written so that number and text are
/// the same thing, and no value is longer than the strict reader keeps.
[[nodiscard]] bool IsPlain(std::string_view text);

/// Takes away what the readers do differently by design: the strict one starts a fill where names change, and
/// a TTI record has the names of the last area there, of its fill here. Areas, islands and TTI records then
/// stand in one fill behind the others, in file order.
void RemoveDifferences(CMTraces& traces);

}  // namespace kestrin::fuzz
