#pragma once

/// @file
/// Asking the system for huge pages.

#include <cstddef>

namespace kestrin {

/// The usual size of a huge page. A block gains from huge pages if it begins at a multiple of this size.
inline constexpr std::size_t kHugePage = std::size_t{2} * 1024 * 1024;

/// Advises the system to back a block with huge pages. Do this for a block that will be used whole: getting
/// its memory in ordinary pages takes as long as filling it.
void PreferHugePages(void* block, std::size_t size) noexcept;

}  // namespace kestrin
