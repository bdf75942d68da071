#pragma once

/// @file
/// The classes of the module that are made from lists of fields.

#include "python/handle.h"
#include "tool/board_fields.h"
#include "tool/check/finding_fields.h"
#include "tool/diff/difference_fields.h"

namespace kestrin::python {

template <>
inline constexpr ClassWords kClass<Reading>{"Reading", "How a board was read from its files."};
template <>
inline constexpr ClassWords kClass<Layer>{"Layer", "A physical layer."};
template <>
inline constexpr ClassWords kClass<Component>{"Component", "A component."};
template <>
inline constexpr ClassWords kClass<Pin>{"Pin", "A pin of a component."};
template <>
inline constexpr ClassWords kClass<NetPin>{"NetPin", "A pin as its net names it."};
template <>
inline constexpr ClassWords kClass<Net>{"Net", "A net with its copper."};
template <>
inline constexpr ClassWords kClass<Area>{"Area", "A filled area."};
template <>
inline constexpr ClassWords kClass<Board>{"Board", "A board in millimetres; x points right and y up."};
template <>
inline constexpr ClassWords kClass<FindingPlace>{"Place", "A line of a file."};
template <>
inline constexpr ClassWords kClass<Finding>{"Finding", "Something that is wrong with a set."};
template <>
inline constexpr ClassWords kClass<SkippedLine>{"SkippedLine", "A line that was skipped."};
template <>
inline constexpr ClassWords kClass<tool::SkippedGroup>{"SkippedLines", "The lines skipped for a reason."};
template <>
inline constexpr ClassWords kClass<SyntaxError>{"SyntaxFault", "Where a Traces file breaks its grammar."};
template <>
inline constexpr ClassWords kClass<tool::ReadFile>{"FileReport", "What became of the lines of a file."};
template <>
inline constexpr ClassWords kClass<tool::Detail>{"Detail", "A value that changed."};
template <>
inline constexpr ClassWords kClass<tool::Change>{"Change", "A change between two boards."};
template <>
inline constexpr ClassWords kClass<tool::Difference>{"Difference", "What changed between two boards."};

}  // namespace kestrin::python
