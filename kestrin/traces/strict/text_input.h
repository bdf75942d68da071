#pragma once

/// @file
/// The input of the scanner, prepared from the bytes of a file.

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kestrin/traces/strict/byte_source.h"
#include "kestrin/traces/strict/zero_escapes.h"

namespace kestrin {

/// Reads blocks from a source, removes each carriage return that directly precedes a line feed, and escapes
/// zero bytes.
class TextInput {
 public:
  explicit TextInput(ByteSource source) : source_(std::move(source)) {}
  TextInput(const TextInput&) = delete;
  TextInput& operator=(const TextInput&) = delete;

  /// Fills text with up to size characters and returns how many; 0 at the end of the file. Returns early if a
  /// block of the source ends with a line, because the next line may take long to arrive. A call after the
  /// end asks the source again.
  [[nodiscard]] std::size_t Read(char* text, std::size_t size);

  /// Whether the text of a token may contain escapes.
  [[nodiscard]] bool HasEscapes() const { return escapesSeen_; }
  /// The first bytes of a token's text, without escapes.
  [[nodiscard]] std::string Original(std::string_view text, std::size_t longest) const {
    return escapesSeen_ ? ZeroEscapes::Undone(text, longest) : std::string(text.substr(0, longest));
  }

 private:
  bool ReadBlock();
  std::size_t TakeEnd(char* text, std::size_t count);
  std::size_t TakeUpToReturn(char* text, std::size_t size);

  ByteSource source_;
  std::vector<char> block_;
  std::string escaped_;       // the block with escapes, if it needs any
  std::string_view rest_;     // the part of either that has not been read yet
  bool returnWaits_ = false;  // a carriage return is held back until the next character is known
  bool endIsKnown_ = false;   // the source has ended, but no call has returned 0 yet
  bool escapesSeen_ = false;
};

}  // namespace kestrin
