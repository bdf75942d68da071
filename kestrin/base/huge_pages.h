#pragma once

/// @file
/// Advice to the system about large blocks of memory.

#include <cstddef>

namespace kestrin {

/// The size of a huge page where there are such: a block should begin at a multiple of it.
inline constexpr std::size_t kHugePage = std::size_t{2} * 1024 * 1024;

/// Says that a block is going to be used from its start to its end, so that a system with huge pages may hand
/// it out in these. A page at a time, that takes as long as filling it.
void PreferHugePages(void* block, std::size_t size) noexcept;

}  // namespace kestrin
