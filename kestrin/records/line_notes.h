#pragma once

/// @file
/// Noting the lines of records while they are made.

#include <cstddef>
#include <cstdint>

#include "kestrin/records/line_table.h"

namespace kestrin {

/// Notes the lines of a RecordPool's records in SourceLines, which can be asked once this object is
/// destroyed. What makes it cheap: a pool places its records at increasing addresses of a few large blocks,
/// so the notes need no order but the one in which they are made, and a place takes four bytes.
class LineNotes {
 public:
  /// The current line is the value that the reference has when a record is made. It and the lines must
  /// outlive this object.
  LineNotes(SourceLines& lines, const std::int64_t& currentLine)
      : table_(*lines.table_), currentLine_(currentLine) {}
  LineNotes(const LineNotes&) = delete;
  LineNotes& operator=(const LineNotes&) = delete;
  ~LineNotes();

  /// Starts a block. The records that follow are in it, at increasing addresses.
  void OpenBlock(const void* block, std::size_t size);

  /// The record at this address is made from the current line.
  void AddRecord(const void* record) {
    if (next_ == chunkEnd_) OpenChunk();
    *next_++ = {static_cast<std::uint32_t>(Address(record) - blockAddress_), CurrentLine()};
  }

  /// What has this address is made or set by the current line, but is not a record of the pool.
  void AddValue(const void* value);

 private:
  [[nodiscard]] static std::uintptr_t Address(const void* object) {
    return reinterpret_cast<std::uintptr_t>(object);
  }
  /// A file may have more lines than fit. Those beyond are not known.
  [[nodiscard]] std::uint32_t CurrentLine() const {
    return currentLine_ <= UINT32_MAX ? static_cast<std::uint32_t>(currentLine_) : 0;
  }
  [[nodiscard]] std::size_t Count() const;
  void OpenChunk();
  void CloseBlock();

  SourceLines::Table& table_;
  const std::int64_t& currentLine_;
  std::uintptr_t blockAddress_ = 0;
  LineNote* next_ = nullptr;  // the next free place in the last chunk
  LineNote* chunkEnd_ = nullptr;
};

}  // namespace kestrin
