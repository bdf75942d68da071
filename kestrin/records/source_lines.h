#pragma once

/// @file
/// Which line of a file made a record.

#include <cstdint>
#include <memory>

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

  struct Table;
  std::unique_ptr<Table> table_;
};

}  // namespace kestrin
