#pragma once

/// @file
/// Reads the lines of a Neutral file into its two models.

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

#include "kestrin/neutral/board_chooser.h"
#include "kestrin/neutral/board_selection.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/records/record_pool.h"
#include "kestrin/text/format_words.h"
#include "kestrin/text/keyword.h"
#include "kestrin/text/line_fields.h"
#include "kestrin/text/line_outcome.h"
#include "kestrin/text/record_table.h"

namespace kestrin {

/// Reads a Neutral file. A record is recognized by its keyword, in whatever section it appears. Headers such
/// as
/// "###Nets" are only counted; the counts decide whether the records that follow are imported.
class NeutralReader {
 public:
  /// The models and the selection must outlive the reader. The selection is up to date after every line.
  NeutralReader(CMComps& components, CMNetList& nets, BoardSelection& selection)
      : components_(components), nets_(nets), selection_(selection) {
    components_.m_nReadFlag = 1;
    selection_ = {};
  }

  /// Notes the lines of records; to be called before the first line.
  void NoteLines(LineNotes& notes) { records_.NoteLines(notes); }

  LineOutcome ReadLine(std::string_view line);

  /// Shows the values that are read as numbers but are not wholly numbers. The line must be the last one
  /// read, and have been imported.
  void ForEachMisreadNumber(std::string_view line, const NumberAction& action);

  /// Passes every word that the reader compares with to the visitor.
  static void ForEachWord(const FormatWordVisitor& visit);

 private:
  using Row = Record<NeutralReader, LineOutcome (NeutralReader::*)()>;
  struct Table;

  void CountSection(std::string_view header);
  LineOutcome SkipForValueCount(const Row& row);
  std::string_view PinName(std::string_view value);

  [[nodiscard]] bool InFirstBoardSection() const { return boardSections_ == 1; }
  [[nodiscard]] bool InSelectedNets() const { return selection_.netsSections == selection_.ordinal; }
  [[nodiscard]] bool InSelectedComponents() const {
    return selection_.componentSections == selection_.ordinal;
  }

  // The handlers of records. They are called only if the record's owner is there.
  LineOutcome AddPlacement();
  LineOutcome SetBoard();
  LineOutcome SetUnits();
  LineOutcome AddNet();
  LineOutcome AddPin();
  LineOutcome AddComponent();
  LineOutcome AddProperties();

  /// Value n of the record, from 1. The row has already checked that the line has it.
  [[nodiscard]] std::string_view Value(std::size_t n) { return values_.Text(n - 1); }

  CMComps& components_;
  CMNetList& nets_;
  BoardSelection& selection_;
  RecordPool records_;
  BoardChooser chooser_;
  std::int64_t boardSections_ = 0;
  CMNetInfo* net_ = nullptr;          // the owner of the next pins
  CMCompsInfo* component_ = nullptr;  // the owner of the next properties
  std::string_view rest_;             // the current line after its keyword
  LineFields values_;                 // of the current line
  std::string scratch_;
};

}  // namespace kestrin
