#pragma once

/// @file
/// Reads the lines of a Traces file into its model.

#include <cstdint>
#include <string_view>

#include "kestrin/records/record_pool.h"
#include "kestrin/text/keyword.h"
#include "kestrin/text/line_fields.h"
#include "kestrin/text/line_outcome.h"
#include "kestrin/text/record_table.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {

/// The first value of a line says which record it is; what was read before says which record it belongs to.
/// A record without an owner is skipped and changes nothing.
class TracesReader {
 public:
  /// The model must outlive the reader.
  explicit TracesReader(CMTraces& model) : model_(model) {}

  /// Raises CInvalidArgException when the line is too short for its record; the model then stays as the lines
  /// before have made it.
  LineOutcome ReadLine(std::string_view line);

 private:
  using Row = Record<TracesReader, LineOutcome (TracesReader::*)()>;
  static const Row* Find(Keyword code);
  LineOutcome ReadRecord(std::string_view line);
  LineOutcome SkipQuoted(std::string_view line);

  // What records do with their values. Their owner is there. A handler reads all values before it changes
  // anything, so that a missing one leaves the model as it was.
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
  LineFields values_;  // of the current line, the code first
  RecordPool records_;
  std::int64_t lineNumber_ = 0;
  std::int64_t quotingLine_ = 0;  // which left the apostrophe open, where one is open

  // Where the next dependent record goes, null before there is a place. A net header closes the fill; nothing
  // else ever closes.
  CMTracesNET* net_ = nullptr;
  CMTracesFIL* fill_ = nullptr;
  RecordArray<CMTracesVER>* vertices_ = nullptr;
  RecordArray<CMTracesSEG>* segments_ = nullptr;
};

}  // namespace kestrin
