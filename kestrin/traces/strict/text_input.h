#pragma once

/// @file
/// The characters of a text file as the scanner takes them.

#include <cstddef>
#include <utility>
#include <vector>

#include "kestrin/traces/strict/byte_source.h"

namespace kestrin {

/// Takes blocks from a source and removes every carriage return that stands directly before a line feed.
class TextInput {
 public:
  explicit TextInput(ByteSource source) : source_(std::move(source)) {}

  /// As many characters as there is room for, fewer only at the end of the file.
  [[nodiscard]] std::size_t Read(char* text, std::size_t size);

 private:
  [[nodiscard]] bool HasBytes() { return position_ < filled_ || ReadBlock(); }
  bool ReadBlock();
  std::size_t TakeUpToReturn(char* text, std::size_t size);

  ByteSource source_;
  std::vector<char> block_;
  std::size_t position_ = 0;
  std::size_t filled_ = 0;
  bool returnWaits_ = false;  // a carriage return was taken, and what follows it is not known yet
  bool ended_ = false;
};

}  // namespace kestrin
