#include "kestrin/records/source_lines.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <new>

#include "kestrin/base/huge_pages.h"

namespace kestrin {
namespace {

std::align_val_t AlignmentOf(std::size_t bytes) {
  return std::align_val_t{bytes < kHugePage ? __STDCPP_DEFAULT_NEW_ALIGNMENT__ : kHugePage};
}

}  // namespace

SourceLines::Chunk::Chunk(std::size_t index) {
  const std::size_t bytes = SizeOf(index) * sizeof(Note);
  notes_ = {static_cast<Note*>(::operator new(bytes, AlignmentOf(bytes))), Free{bytes}};
  if (bytes >= kHugePage) PreferHugePages(notes_.get(), bytes);
}

std::size_t SourceLines::Chunk::IndexFor(std::size_t note) {
  return static_cast<std::size_t>(std::bit_width(note / kFirstSize + 1)) - 1;
}

void SourceLines::Chunk::Free::operator()(Note* notes) const noexcept {
  ::operator delete(notes, AlignmentOf(bytes));
}

SourceLines::SourceLines() = default;
SourceLines::~SourceLines() = default;

std::int64_t SourceLines::LineOf(const void* record) const {
  const auto address = reinterpret_cast<std::uintptr_t>(record);
  const auto next = blocks_.upper_bound(address);
  if (next != blocks_.begin()) {
    const auto& [start, block] = *std::prev(next);
    if (const std::uint32_t line = LineIn(block, address - start)) return line;
  }
  return LineOfValue(address);
}

const SourceLines::Note& SourceLines::NoteAt(std::size_t number) const {
  const std::size_t chunk = Chunk::IndexFor(number);
  return chunks_[chunk].Begin()[number - Chunk::NotesBefore(chunk)];
}

std::uint32_t SourceLines::LineIn(const Block& block, std::uintptr_t place) const {
  if (place >= block.size) return 0;
  std::size_t first = block.firstNote;
  std::size_t end = block.endOfNotes;
  while (first < end) {
    const std::size_t middle = first + (end - first) / 2;
    const Note& note = NoteAt(middle);
    if (note.place == place) return note.line;
    if (note.place < place) {
      first = middle + 1;
    } else {
      end = middle;
    }
  }
  return 0;
}

std::uint32_t SourceLines::LineOfValue(std::uintptr_t address) const {
  const auto next =
      std::upper_bound(values_.begin(), values_.end(), address,
                       [](std::uintptr_t wanted, const Value& value) { return wanted < value.address; });
  return next != values_.begin() && std::prev(next)->address == address ? std::prev(next)->line : 0;
}

}  // namespace kestrin
