#pragma once

/// @file
/// Opening a file, which each system does in its own way.

#include "kestrin/base/file_handle.h"

namespace kestrin {

/// Opens a file to read its bytes. Returns null and sets errno if it cannot be opened or is a folder.
[[nodiscard]] FileHandle OpenToRead(const char* path);

}  // namespace kestrin
