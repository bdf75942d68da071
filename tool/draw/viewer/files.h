#pragma once

/// @file
/// The viewer's files, which the build embeds in the tool.

#include <array>
#include <string_view>

namespace kestrin::tool::draw {

extern const std::string_view kViewerPage;
extern const std::string_view kViewerStyle;
/// In the order in which the page runs them.
extern const std::array<std::string_view, 6> kViewerScripts;

}  // namespace kestrin::tool::draw
