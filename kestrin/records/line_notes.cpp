#include "kestrin/records/line_notes.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace kestrin {

LineNotes::~LineNotes() {
  CloseBlock();
  auto& values = lines_.values_;
  std::sort(values.begin(), values.end(), [](const auto& left, const auto& right) {
    return std::tie(left.address, left.line) < std::tie(right.address, right.line);
  });
}

void LineNotes::OpenBlock(const void* block, std::size_t size) {
  CloseBlock();
  blockAddress_ = Address(block);
  // Where a block was before, its records are all deleted.
  auto& blocks = lines_.blocks_;
  auto overlapping = blocks.lower_bound(blockAddress_);
  if (overlapping != blocks.begin()) {
    const auto before = std::prev(overlapping);
    if (before->first + before->second.size > blockAddress_) overlapping = before;
  }
  while (overlapping != blocks.end() && overlapping->first < blockAddress_ + size) {
    overlapping = blocks.erase(overlapping);
  }
  blocks[blockAddress_] = {size, Count(), Count()};
}

void LineNotes::AddValue(const void* value) { lines_.values_.push_back({Address(value), CurrentLine()}); }

std::size_t LineNotes::Count() const {
  return SourceLines::Chunk::NotesBefore(lines_.chunks_.size()) - static_cast<std::size_t>(chunkEnd_ - next_);
}

void LineNotes::OpenChunk() {
  const std::size_t index = lines_.chunks_.size();
  next_ = lines_.chunks_.emplace_back(index).Begin();
  chunkEnd_ = next_ + SourceLines::Chunk::SizeOf(index);
}

void LineNotes::CloseBlock() {
  const auto block = lines_.blocks_.find(blockAddress_);
  if (block != lines_.blocks_.end()) block->second.endOfNotes = Count();
}

}  // namespace kestrin
