#pragma once

/// @file
/// The input of the strict reader.

#include <cstddef>
#include <functional>

#include "kestrin/base/export.h"

namespace kestrin {

/// Copies up to size bytes of the input to bytes and returns how many it copied; 0 means the end of the
/// input.
///
///     ByteSource source = [file](char* bytes, std::size_t size) { return std::fread(bytes, 1, size, file);
///     };
using ByteSource = std::function<std::size_t(char* bytes, std::size_t size)>;

}  // namespace kestrin
