#include "kestrin/records/source_lines.h"

#include <algorithm>
#include <bit>
#include <iterator>
#include <new>

#include "kestrin/base/huge_pages.h"
#include "kestrin/records/line_table.h"

namespace kestrin {
namespace {

std::align_val_t AlignmentOf(std::size_t bytes) {
  return std::align_val_t{bytes < kHugePage ? __STDCPP_DEFAULT_NEW_ALIGNMENT__ : kHugePage};
}

}  // namespace

LineNoteChunk::LineNoteChunk(std::size_t index) {
  const std::size_t bytes = SizeOf(index) * sizeof(LineNote);
  notes_ = {static_cast<LineNote*>(::operator new(bytes, AlignmentOf(bytes))), Free{bytes}};
  if (bytes >= kHugePage) PreferHugePages(notes_.get(), bytes);
}

std::size_t LineNoteChunk::IndexFor(std::size_t note) {
  return static_cast<std::size_t>(std::bit_width(note / kFirstSize + 1)) - 1;
}

void LineNoteChunk::Free::operator()(LineNote* notes) const noexcept {
  ::operator delete(notes, AlignmentOf(bytes));
}

SourceLines::SourceLines() : table_(std::make_unique<Table>()) {}
SourceLines::~SourceLines() = default;

std::int64_t SourceLines::LineOf(const void* record) const {
  const auto address = reinterpret_cast<std::uintptr_t>(record);
  const auto next = table_->blocks.upper_bound(address);
  if (next != table_->blocks.begin()) {
    const auto& [start, block] = *std::prev(next);
    if (const std::uint32_t line = table_->LineIn(block, address - start)) return line;
  }
  return table_->LineOfValue(address);
}

const LineNote& SourceLines::Table::NoteAt(std::size_t number) const {
  const std::size_t chunk = LineNoteChunk::IndexFor(number);
  return notes[chunk].Begin()[number - LineNoteChunk::NotesBefore(chunk)];
}

std::uint32_t SourceLines::Table::LineIn(const Block& block, std::uintptr_t place) const {
  if (place >= block.size) return 0;
  std::size_t first = block.firstNote;
  std::size_t end = block.endOfNotes;
  while (first < end) {
    const std::size_t middle = first + (end - first) / 2;
    const LineNote& note = NoteAt(middle);
    if (note.place == place) return note.line;
    if (note.place < place) {
      first = middle + 1;
    } else {
      end = middle;
    }
  }
  return 0;
}

std::uint32_t SourceLines::Table::LineOfValue(std::uintptr_t address) const {
  const auto next =
      std::upper_bound(values.begin(), values.end(), address,
                       [](std::uintptr_t wanted, const Value& value) { return wanted < value.address; });
  return next != values.begin() && std::prev(next)->address == address ? std::prev(next)->line : 0;
}

}  // namespace kestrin
