#pragma once

/// @file
/// Reads the lines of a Neutral file into its two models.

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "kestrin/neutral/board_selection.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/text/line_outcome.h"

namespace kestrin {

/// Records are known by their keyword wherever they stand; headers ("###Nets") only count sections, and the
/// counts decide which records are taken.
class NeutralReader {
 public:
  /// The models must outlive the reader.
  NeutralReader(CMComps& components, CMNetList& nets) : components_(components), nets_(nets) {
    components_.m_nReadFlag = 1;
  }

  LineOutcome ReadLine(std::string_view line);

  [[nodiscard]] const BoardSelection& Selection() const { return selection_; }

 private:
  struct Record;
  struct Records;

  void CountSection(std::string_view header);
  LineOutcome ReadRecord(const Record& record);

  // Which records are taken.
  [[nodiscard]] bool Always() const { return true; }
  [[nodiscard]] bool InFirstBoardSection() const { return boardSections_ == 1; }
  [[nodiscard]] bool InSelectedNets() const { return netsSections_ == selection_.Ordinal(); }
  [[nodiscard]] bool InSelectedComponents() const { return componentSections_ == selection_.Ordinal(); }

  // What they do with their values.
  LineOutcome AddPlacement();
  LineOutcome SetBoard();
  LineOutcome SetUnits();
  LineOutcome AddNet();
  LineOutcome AddPin();
  LineOutcome AddComponent();
  LineOutcome AddProperties();

  /// Value n of the record, from 1; the record's row has seen to it that there is one.
  [[nodiscard]] std::string_view Value(std::size_t n) const { return values_[n - 1]; }

  CMComps& components_;
  CMNetList& nets_;
  BoardSelection selection_;
  int boardSections_ = 0;
  int netsSections_ = 0;
  int componentSections_ = 0;
  std::string boardName_;
  CMNetInfo* net_ = nullptr;              // takes the pins that follow
  CMCompsInfo* component_ = nullptr;      // takes the properties that follow
  std::string_view rest_;                 // of the current line, behind its keyword
  std::vector<std::string_view> values_;  // of the current line
  std::string scratch_;
};

}  // namespace kestrin
