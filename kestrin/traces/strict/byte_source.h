#pragma once

/// @file
/// Where the strict reader takes a file from.

#include <cstddef>
#include <functional>

#include "kestrin/base/export.h"

namespace kestrin {

/// Reads up to that many bytes of a file to a place and returns how many; 0 at the end of the file.
using ByteSource = std::function<std::size_t(char* bytes, std::size_t size)>;

}  // namespace kestrin
