#pragma once

/// @file
/// How the lines of records are stored: 8 bytes for each.

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "kestrin/records/source_lines.h"

namespace kestrin {

/// The line of a record at a place in its block of memory.
struct LineNote {
  std::uint32_t place;
  std::uint32_t line;
};

/// A part of a list of notes. Each is twice as large as the one before, so large ones get huge pages.
class LineNoteChunk {
 public:
  /// Makes the part with this index, without any notes.
  explicit LineNoteChunk(std::size_t index);

  [[nodiscard]] LineNote* Begin() const { return notes_.get(); }
  [[nodiscard]] static std::size_t SizeOf(std::size_t index) { return kFirstSize << index; }
  /// The number of notes in the parts before this one.
  [[nodiscard]] static std::size_t NotesBefore(std::size_t index) { return SizeOf(index) - kFirstSize; }
  /// The index of the part that has a note.
  [[nodiscard]] static std::size_t IndexFor(std::size_t note);

 private:
  struct Free {
    std::size_t bytes;
    void operator()(LineNote* notes) const noexcept;
  };
  static constexpr std::size_t kFirstSize = 4096;

  std::unique_ptr<LineNote, Free> notes_;
};

/// What SourceLines consists of.
struct SourceLines::Table {
  /// A block of records, and the part of the notes that is about them, in the order of their places.
  struct Block {
    std::size_t size = 0;
    std::size_t firstNote = 0;
    std::size_t endOfNotes = 0;
  };

  /// The address of something that is not a record of a block, but may be inside of one.
  struct Value {
    std::uintptr_t address;
    std::uint32_t line;
  };

  [[nodiscard]] const LineNote& NoteAt(std::size_t number) const;
  [[nodiscard]] std::uint32_t LineIn(const Block& block, std::uintptr_t place) const;
  [[nodiscard]] std::uint32_t LineOfValue(std::uintptr_t address) const;

  std::vector<LineNoteChunk> notes;        // in the order in which the records were made
  std::map<std::uintptr_t, Block> blocks;  // by their addresses; they do not overlap
  std::vector<Value> values;               // in the order of their addresses, then of their lines
};

}  // namespace kestrin
