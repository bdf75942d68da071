#pragma once

/// @file
/// Cuts a line into fields without copying it. Every cut takes the text and a position in it, which it moves
/// on, and returns the next field as a view (into the text, but for NextPropertyGroup), or nothing at the
/// end. No cut ever returns an empty field.

#include <bitset>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace kestrin {

/// Characters by their unsigned code.
using CharacterSet = std::bitset<256>;

/// Adds every character of the text to the set.
void AddCharacters(CharacterSet& set, std::string_view characters);

/// The next run of characters that are not delimiters; the position is then at the delimiter that ended
/// it.
[[nodiscard]] std::optional<std::string_view> NextToken(std::string_view text, const CharacterSet& delimiters,
                                                        std::size_t& position);

/// The same for one delimiter.
[[nodiscard]] std::optional<std::string_view> NextToken(std::string_view text, char delimiter,
                                                        std::size_t& position);

/// The next field between commas. Commas inside double quotes do not separate; a quote directly after a
/// backslash neither opens nor closes. Quotes and backslashes stay in the field.
[[nodiscard]] std::optional<std::string_view> NextCommaField(std::string_view line, std::size_t& position);

/// The next field between spaces (no other white space). Spaces inside apostrophes do not separate; the
/// apostrophes stay in the field.
[[nodiscard]] std::optional<std::string_view> NextSpaceField(std::string_view line, std::size_t& position);

/// The next group in parentheses, without the spaces that stand outside double quotes. Text that a closing
/// parenthesis ends and that does not begin with an opening one is passed over; text after the last closing
/// parenthesis is a field whatever it begins with. The field is a view into the line, or into the scratch
/// string where spaces had to go.
[[nodiscard]] std::optional<std::string_view> NextPropertyGroup(std::string_view line, std::size_t& position,
                                                                std::string& scratch);

}  // namespace kestrin
