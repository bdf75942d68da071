#include "kestrin/traces/strict/text_input.h"

#include <algorithm>

namespace kestrin {

std::size_t TextInput::Read(char* text, std::size_t size) {
  std::size_t count = 0;
  while (count < size) {
    if (rest_.empty()) {
      if (count > 0 && text[count - 1] == '\n') return count;
      if (endIsKnown_ || !ReadBlock()) return TakeEnd(text, count);
    }
    if (returnWaits_ && rest_.front() != '\n') text[count++] = '\r';
    count += TakeUpToReturn(text + count, size - count);
  }
  return count;
}

bool TextInput::ReadBlock() {
  constexpr std::size_t kBlockSize = std::size_t{64} * 1024;
  block_.resize(kBlockSize);
  rest_ = {block_.data(), source_(block_.data(), block_.size())};
  if (ZeroEscapes::AreNeededIn(rest_)) {
    escaped_.clear();
    ZeroEscapes::Append(escaped_, rest_);
    rest_ = escaped_;
    escapesSeen_ = true;
  }
  return !rest_.empty();
}

/// Called at the end of the file with count characters taken and room for at least one more.
std::size_t TextInput::TakeEnd(char* text, std::size_t count) {
  if (std::exchange(returnWaits_, false)) text[count++] = '\r';
  endIsKnown_ = count > 0;
  return count;
}

std::size_t TextInput::TakeUpToReturn(char* text, std::size_t size) {
  const std::string_view room = rest_.substr(0, size);
  const std::size_t found = room.find('\r');
  const std::size_t count = std::min(found, room.size());
  room.copy(text, count);
  returnWaits_ = found != std::string_view::npos;
  rest_.remove_prefix(returnWaits_ ? count + 1 : count);
  return count;
}

}  // namespace kestrin
