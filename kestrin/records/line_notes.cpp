#include "kestrin/records/line_notes.h"

#include <algorithm>
#include <iterator>
#include <tuple>

namespace kestrin {

LineNotes::~LineNotes() {
  CloseBlock();
  auto& values = table_.values;
  std::sort(values.begin(), values.end(), [](const auto& left, const auto& right) {
    return std::tie(left.address, left.line) < std::tie(right.address, right.line);
  });
}

void LineNotes::OpenBlock(const void* block, std::size_t size) {
  CloseBlock();
  blockAddress_ = Address(block);
  // Where a block was before, its records are all deleted.
  auto& blocks = table_.blocks;
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

void LineNotes::AddValue(const void* value) { table_.values.push_back({Address(value), CurrentLine()}); }

std::size_t LineNotes::Count() const {
  return LineNoteChunk::NotesBefore(table_.notes.size()) - static_cast<std::size_t>(chunkEnd_ - next_);
}

void LineNotes::OpenChunk() {
  const std::size_t index = table_.notes.size();
  next_ = table_.notes.emplace_back(index).Begin();
  chunkEnd_ = next_ + LineNoteChunk::SizeOf(index);
}

void LineNotes::CloseBlock() {
  const auto block = table_.blocks.find(blockAddress_);
  if (block != table_.blocks.end()) block->second.endOfNotes = Count();
}

}  // namespace kestrin
