#pragma once

#include <string_view>

#include "kestrin/traces/strict/byte_source.h"

namespace kestrin::test {

/// A source that returns a text in pieces of this many bytes.
inline ByteSource SourceOf(std::string_view text, std::size_t piece = 1000) {
  return [text, piece](char* bytes, std::size_t size) mutable {
    const std::size_t count = text.copy(bytes, size < piece ? size : piece);
    text.remove_prefix(count);
    return count;
  };
}

}  // namespace kestrin::test
