#pragma once

/// @file
/// Reads the lines of a Traces file into its model.

#include <cstdint>
#include <string_view>

#include "kestrin/records/record_pool.h"
#include "kestrin/text/format_words.h"
#include "kestrin/text/keyword.h"
#include "kestrin/text/line_fields.h"
#include "kestrin/text/line_outcome.h"
#include "kestrin/text/record_table.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {

/// Reads a Traces file. The code at the start of a line says which record it is, and the lines before it
/// decide which record it belongs to. A record without an owner is skipped and changes nothing.
class TracesReader {
 public:
  /// The model must outlive the reader.
  explicit TracesReader(CMTraces& model) : model_(model) {}

  /// Notes the lines of records; to be called before the first line.
  void NoteLines(LineNotes& notes) { records_.NoteLines(notes); }

  /// Raises CInvalidArgException if the line has too few values for its record. The model is then unchanged.
  LineOutcome ReadLine(std::string_view line);

  /// Cuts a line without reading it, for ForEachMisreadNumber. That is much faster.
  void CutLine(std::string_view line);

  /// Shows the values that are read as numbers but are not wholly numbers. The line must be the last one
  /// read, and have been imported; or the last one cut, which need not be fit for an import.
  void ForEachMisreadNumber(std::string_view line, const NumberAction& action);

  /// Passes every word that the reader compares with to the visitor.
  static void ForEachWord(const FormatWordVisitor& visit);

 private:
  using Row = Record<TracesReader, LineOutcome (TracesReader::*)()>;
  struct Table;
  LineOutcome ReadRecord(std::string_view line);
  LineOutcome SkipQuoted(std::string_view line);

  // The handlers of records. They are called only if the record's owner is there. A handler reads all values
  // before it changes anything, so that the model is unchanged if a value is missing.
  LineOutcome SetUnits();
  LineOutcome SetSt();
  LineOutcome AddXrf();
  LineOutcome AddTet();
  LineOutcome AddTtt();
  LineOutcome AddNet();
  LineOutcome AddWir();
  LineOutcome AddInc();
  LineOutcome AddAnt();
  LineOutcome AddGui();
  LineOutcome AddChg();
  LineOutcome AddSeg();
  LineOutcome AddFil();
  LineOutcome AddAre();
  LineOutcome AddArs();
  LineOutcome AddIsl();
  LineOutcome AddIss();
  LineOutcome AddTti();
  LineOutcome AddVer();

  template <class Wire>
  LineOutcome AddWithSegments(RecordArray<Wire>* CMTracesNET::*list);
  LineOutcome AddGuiOrChg(RecordArray<CMTracesGUICHG>* CMTracesNET::*list);
  template <class Area>
  LineOutcome AddArea(RecordArray<Area>* CMTracesFIL::*list);
  template <class Island>
  LineOutcome AddIsland(RecordArray<Island>* CMTracesFIL::*list);
  void AddFillFor(const CMTracesArea& area);

  CMTraces& model_;
  LineFields values_;  // of the current line; field 0 is the code
  RecordPool records_;
  std::int64_t lineNumber_ = 0;
  std::int64_t quotingLine_ = 0;  // the line that opened the apostrophe, if one is open

  // The owners of the next dependent records; null until there is one. A net header sets the fill to null; no
  // other line resets an owner.
  CMTracesNET* net_ = nullptr;
  CMTracesFIL* fill_ = nullptr;
  RecordArray<CMTracesVER>* vertices_ = nullptr;
  RecordArray<CMTracesSEG>* segments_ = nullptr;
};

}  // namespace kestrin
