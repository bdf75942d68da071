#pragma once

/// @file
/// An open file of the C library that closes itself.

#include <cstdio>
#include <memory>

namespace kestrin {

struct FileCloser {
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the owner's own deleter
  void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

using FileHandle = std::unique_ptr<std::FILE, FileCloser>;

}  // namespace kestrin
