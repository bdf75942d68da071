#pragma once

/// @file
/// The unit of a $$page line.

#include <string_view>

namespace kestrin {

/// The unit that the arguments of a $$page line name: "MM", "IN", "MIL" or "CM"; empty for none of them.
[[nodiscard]] std::string_view UnitOfPage(std::string_view arguments);

}  // namespace kestrin
