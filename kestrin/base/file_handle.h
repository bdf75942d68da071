#pragma once

/// @file
/// A C library file that is closed automatically.

#include <cstdio>
#include <memory>

namespace kestrin {

struct FileCloser {
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the owner's own deleter
  void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

}  // namespace kestrin
