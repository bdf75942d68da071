#include "kestrin/traces/strict/text_input.h"

#include <algorithm>
#include <cstring>

namespace kestrin {

std::size_t TextInput::Read(char* text, std::size_t size) {
  std::size_t count = 0;
  while (count < size && HasBytes()) {
    if (returnWaits_ && block_[position_] != '\n') text[count++] = '\r';
    returnWaits_ = false;
    count += TakeUpToReturn(text + count, size - count);
  }
  if (count < size && returnWaits_) {  // at the end of the file
    text[count++] = '\r';
    returnWaits_ = false;
  }
  return count;
}

bool TextInput::ReadBlock() {
  constexpr std::size_t kBlockSize = std::size_t{64} * 1024;
  if (ended_) return false;
  block_.resize(kBlockSize);
  position_ = 0;
  filled_ = source_(block_.data(), block_.size());
  ended_ = filled_ == 0;
  ReplaceZeros();
  return !ended_;
}

void TextInput::ReplaceZeros() {
  if (filled_ == 0 || std::memchr(block_.data(), '\0', filled_) == nullptr) return;
  std::replace(block_.data(), block_.data() + filled_, '\0', kZeroStandIn);
  zeroSeen_ = true;
}

std::size_t TextInput::TakeUpToReturn(char* text, std::size_t size) {
  const std::size_t room = std::min(size, filled_ - position_);
  if (room == 0) return 0;
  const char* from = block_.data() + position_;
  const auto* found = static_cast<const char*>(std::memchr(from, '\r', room));
  const std::size_t count = found == nullptr ? room : static_cast<std::size_t>(found - from);
  std::memcpy(text, from, count);
  position_ += count;
  if (found != nullptr) {
    ++position_;
    returnWaits_ = true;
  }
  return count;
}

}  // namespace kestrin
