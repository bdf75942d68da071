#pragma once

/// @file
/// Reads the lines of a Traces file into its model.

#include <cstdint>
#include <string_view>

#include "kestrin/records/record_pool.h"
#include "kestrin/text/keyword.h"
#include "kestrin/text/line_fields.h"
#include "kestrin/text/line_outcome.h"
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
  struct RecordKind;
  static const RecordKind* FindKind(Keyword code);
  LineOutcome ReadRecord(std::string_view line);
  LineOutcome SkipQuoted(std::string_view line);

  // A function for every record code. It reads the values first, so that a missing one raises whatever the
  // record belongs to, and gives false when there is no owner to add the record to.
  bool SetUnits();
  bool SetSt();
  bool AddXrf();
  bool AddTet();
  bool AddTtt();
  void AddNet();
  bool AddWir();
  bool AddInc();
  bool AddAnt();
  bool AddGui();
  bool AddChg();
  bool AddSeg();
  bool AddFil();
  bool AddAre();
  bool AddArs();
  bool AddIsl();
  bool AddIss();
  bool AddTti();
  bool AddVer();

  template <class RECORD>
  bool AddWithSegments(RecordArray<RECORD>* CMTracesNET::*list);
  bool AddGuiOrChg(RecordArray<CMTracesGUICHG>* CMTracesNET::*list);
  template <class AREA>
  bool AddArea(RecordArray<AREA>* CMTracesFIL::*list);
  template <class ISLAND>
  bool AddIsland(RecordArray<ISLAND>* CMTracesFIL::*list);
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
