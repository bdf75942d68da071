#include "kestrin/traces/strict/scanner_memory.h"

#include <algorithm>

namespace kestrin {

void* ScannerMemory::Allocate(std::size_t size) {
  Block& block = BlockAt(nullptr);
  block.reset(std::malloc(size));  // NOLINT(cppcoreguidelines-owning-memory): owned at once
  return block.get();
}

void* ScannerMemory::Reallocate(void* bytes, std::size_t size) {
  // The automaton doubles its buffer and counts the bytes in an int, two less than the block has. A block of
  // twice this size would be the last that it can count.
  constexpr std::size_t kLargest = (std::size_t{1} << 29) + 2;
  Block& block = BlockAt(bytes);
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the block owns both pointers
  void* const enlarged = size > kLargest ? nullptr : std::realloc(bytes, size);
  if (enlarged == nullptr) throw ScannerError("fatal error - scanner input buffer overflow");
  static_cast<void>(block.release());
  block.reset(enlarged);
  return enlarged;
}

void ScannerMemory::Free(void* bytes) {
  if (bytes != nullptr) BlockAt(bytes).reset();
}

/// The block at this address; an unused block for null.
ScannerMemory::Block& ScannerMemory::BlockAt(const void* bytes) {
  const auto found =
      std::find_if(blocks_.begin(), blocks_.end(), [&](const Block& block) { return block.get() == bytes; });
  if (found == blocks_.end()) throw ScannerError("the scanner uses more memory blocks than expected");
  return *found;
}

}  // namespace kestrin
