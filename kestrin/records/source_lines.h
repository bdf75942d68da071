#pragma once

/// @file
/// Which line of a file made a record.

#include <cstddef>
#include <cstdint>
#include <map>
#include <memory>
#include <vector>

#include "kestrin/base/export.h"

namespace kestrin {

class LineNotes;

/// The lines of a file that made the records of its model. A session keeps them if you ask it to:
///
///     session.KeepSourceLines(true);
///     session.NeutralFileParse("board.neutral");
///     const SourceLines* lines = session.GetSourceLines(ImportFile::kNeutral);
///     lines->LineOf(session.GetNetList()->m_pNets->GetAt(0));  // 12
///     lines->LineOf(&session.GetComps()->m_sUnits);            // 10
///
/// It takes 8 bytes for each record. Several threads may ask at once.
///
/// What happens if you delete a record? Its line stays known under its address, so do not ask for an object
/// that you made since: it may have the same address. A record that you moved to another list keeps its line.
class KESTRIN_EXPORT SourceLines {
 public:
  SourceLines();
  SourceLines(const SourceLines&) = delete;
  SourceLines& operator=(const SourceLines&) = delete;
  ~SourceLines();

  /// The line, counted from 1, that made a record of the model; 0 if it is not known. A record that needed
  /// several lines has that of the first. The record must exist.
  ///
  /// These also have a line, though they are no records of their own, each under its address: the last that
  /// set
  /// - m_sUnits of CMTraces, of CMComps and of any geometry,
  /// - m_sDefaultPadstack of any geometry,
  /// - the board and the stack-up of CMGeom: the line that names them,
  /// - the list of an outline of the board: *m_pPlacementOutline, *m_pRoutingOutline.
  [[nodiscard]] std::int64_t LineOf(const void* record) const;

 private:
  friend class LineNotes;

  /// The place of a record in its block of memory.
  struct Note {
    std::uint32_t place;
    std::uint32_t line;
  };
  /// Notes are stored in chunks, each twice as large as the one before, so that large ones get huge pages.
  class Chunk {
   public:
    /// Makes the chunk with this index, without any notes.
    explicit Chunk(std::size_t index);
    [[nodiscard]] Note* Begin() const { return notes_.get(); }
    [[nodiscard]] static std::size_t SizeOf(std::size_t index) { return kFirstSize << index; }
    /// The number of notes in the chunks before this one.
    [[nodiscard]] static std::size_t NotesBefore(std::size_t index) { return SizeOf(index) - kFirstSize; }
    /// The index of the chunk that has a note.
    [[nodiscard]] static std::size_t IndexFor(std::size_t note);

   private:
    struct Free {
      std::size_t bytes;
      void operator()(Note* notes) const noexcept;
    };
    static constexpr std::size_t kFirstSize = 4096;

    std::unique_ptr<Note, Free> notes_;
  };

  /// A block of records, and the part of the notes that is about them, in the order of their places.
  struct Block {
    std::size_t size = 0;
    std::size_t firstNote = 0;
    std::size_t endOfNotes = 0;
  };

  /// The address of something outside the blocks, or inside of a record.
  struct Value {
    std::uintptr_t address;
    std::uint32_t line;
  };

  [[nodiscard]] const Note& NoteAt(std::size_t number) const;
  [[nodiscard]] std::uint32_t LineIn(const Block& block, std::uintptr_t place) const;
  [[nodiscard]] std::uint32_t LineOfValue(std::uintptr_t address) const;

  std::vector<Chunk> chunks_;               // the notes, in the order in which the records were made
  std::map<std::uintptr_t, Block> blocks_;  // by their addresses; they do not overlap
  std::vector<Value> values_;               // in the order of their addresses, then of their lines
};

}  // namespace kestrin
