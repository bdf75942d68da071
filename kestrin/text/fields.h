#pragma once

/// @file
/// Cuts a line into fields without copying it.
///
///     std::size_t position = 0;
///     while (const auto field = NextCommaField(line, position)) Use(*field);
///
/// Each function starts at the position, advances it, and returns the next field, or nothing at the end.
/// Fields are views into the line, except for NextPropertyGroup. No field is empty.

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kestrin {

/// A set of characters, indexed by unsigned character code.
using CharacterSet = std::bitset<256>;

/// Adds every character of the text to the set.
void AddCharacters(CharacterSet& set, std::string_view characters);

/// The next run of characters that are not delimiters. Leaves the position at the delimiter that ends it.
[[nodiscard]] std::optional<std::string_view> NextToken(std::string_view text, const CharacterSet& delimiters,
                                                        std::size_t& position);

/// The same for a single delimiter.
[[nodiscard]] std::optional<std::string_view> NextToken(std::string_view text, char delimiter,
                                                        std::size_t& position);

/// The next field between commas. A comma inside double quotes does not separate; a quote directly after a
/// backslash does not count. Quotes and backslashes stay in the field.
[[nodiscard]] std::optional<std::string_view> NextCommaField(std::string_view line, std::size_t& position);

/// The next field between spaces; other white space does not separate. Nor does a space inside apostrophes.
/// The apostrophes stay in the field.
[[nodiscard]] std::optional<std::string_view> NextSpaceField(std::string_view line, std::size_t& position);

/// The next group in parentheses: `(A,"B C") (D, E)` has the groups `(A,"B C")` and `(D,E)`. Spaces outside
/// double quotes are removed. A group that does not begin with its opening parenthesis is dropped. Text after
/// the last closing parenthesis is a field, whatever it begins with. The field is a view into the line or, if
/// spaces were removed, into the scratch string.
[[nodiscard]] std::optional<std::string_view> NextPropertyGroup(std::string_view line, std::size_t& position,
                                                                std::string& scratch);

}  // namespace kestrin
