#pragma once

#include <algorithm>
#include <string>

#include "kestrin/traces/strict/strict_parser.h"

namespace kestrin::test {

/// A file in memory, given in pieces of that many bytes.
inline ByteSource SourceOf(std::string text, std::size_t piece = 1000) {
  return [text = std::move(text), piece, position = std::size_t{0}](char* bytes, std::size_t size) mutable {
    const std::size_t count = text.copy(bytes, std::min(size, piece), position);
    position += count;
    return count;
  };
}

}  // namespace kestrin::test
