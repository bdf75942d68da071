#pragma once

/// @file
/// The characters of a text file as the scanner takes them.

#include <cstddef>
#include <string_view>
#include <utility>
#include <vector>

#include "kestrin/traces/strict/byte_source.h"

namespace kestrin {

/// Takes blocks from a source, removes every carriage return that stands directly before a line feed, and
/// puts a stand-in for every zero byte: with one in a long text, the scanner would look through the text from
/// its start again.
class TextInput {
 public:
  static constexpr char kZeroStandIn = '\x01';

  explicit TextInput(ByteSource source) : source_(std::move(source)) {}

  /// As many characters as there is room for, fewer only at the end of the file.
  [[nodiscard]] std::size_t Read(char* text, std::size_t size);

  /// A text up to the first zero byte; in a file that has any, a byte 1 is taken for one.
  [[nodiscard]] std::string_view UpToZero(std::string_view text) const {
    return zeroSeen_ ? text.substr(0, text.find(kZeroStandIn)) : text;
  }

 private:
  [[nodiscard]] bool HasBytes() { return position_ < filled_ || ReadBlock(); }
  bool ReadBlock();
  void ReplaceZeros();
  std::size_t TakeUpToReturn(char* text, std::size_t size);

  ByteSource source_;
  std::vector<char> block_;
  std::size_t position_ = 0;
  std::size_t filled_ = 0;
  bool returnWaits_ = false;  // a carriage return was taken, and what follows it is not known yet
  bool ended_ = false;
  bool zeroSeen_ = false;
};

}  // namespace kestrin
