#pragma once

/// @file
/// The characters of a text file as the scanner takes them.

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kestrin/traces/strict/byte_source.h"
#include "kestrin/traces/strict/zero_escapes.h"

namespace kestrin {

/// Takes blocks from a source, removes every carriage return that stands directly before a line feed, and
/// escapes zero bytes.
class TextInput {
 public:
  explicit TextInput(ByteSource source) : source_(std::move(source)) {}
  TextInput(const TextInput&) = delete;
  TextInput& operator=(const TextInput&) = delete;

  /// As many characters as there is room for; fewer at the end of the file, and where the source's block and
  /// a line end together: the next line may be long in coming. After it has returned 0 it asks the source
  /// anew.
  [[nodiscard]] std::size_t Read(char* text, std::size_t size);

  /// Whether texts may differ from what the file has.
  [[nodiscard]] bool HasEscapes() const { return escapesSeen_; }
  /// A token's text as the file has it, up to so many bytes.
  [[nodiscard]] std::string Original(std::string_view text, std::size_t longest) const {
    return escapesSeen_ ? ZeroEscapes::Undone(text, longest) : std::string(text.substr(0, longest));
  }

 private:
  bool ReadBlock();
  std::size_t TakeEnd(char* text, std::size_t count);
  std::size_t TakeUpToReturn(char* text, std::size_t size);

  ByteSource source_;
  std::vector<char> block_;
  std::string escaped_;       // the block, where it needs escapes
  std::string_view rest_;     // of either, not taken yet
  bool returnWaits_ = false;  // a carriage return was taken, and what follows it is not known yet
  bool endIsKnown_ = false;   // the source has ended, and that is not told yet
  bool escapesSeen_ = false;
};

}  // namespace kestrin
