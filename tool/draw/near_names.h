#pragma once

/// @file
/// What somebody may have meant who wrote a name that is not there.

#include <string>
#include <string_view>
#include <vector>

namespace kestrin::tool::draw {

/// "no net \"GMD\"; did you mean \"GND\"?" The names that differ least from the wrong one, three at most, or
/// none if all are very different.
[[nodiscard]] std::string NoSuchName(std::string_view what, std::string_view wrong,
                                     const std::vector<std::string_view>& names);

}  // namespace kestrin::tool::draw
