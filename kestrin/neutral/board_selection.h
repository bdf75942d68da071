#pragma once

/// @file
/// Which of the boards of a Neutral file is imported.

#include <cstdint>
#include <string_view>

#include "kestrin/neutral/component_model.h"

namespace kestrin {

/// A file may hold sections for several boards; of its nets and its component sections one each is read. It
/// is chosen by the placements of the board on the panel: the first whose value 6 is none of the set aside
/// numbers, counted among the placements of that board.
class BoardSelection {
 public:
  /// The sections of this ordinal, from 1, are read.
  [[nodiscard]] int Ordinal() const { return ordinal_; }
  /// The index of the placement that chose them, -1 when none did.
  [[nodiscard]] std::int64_t Placement() const { return placement_; }

  /// Chooses by the placements read so far; without one that qualifies the choice stays.
  void Choose(const CArray<CMCompsPanel*, CMCompsPanel*>& placements, std::string_view boardName);

 private:
  int ordinal_ = 1;
  std::int64_t placement_ = -1;
};

}  // namespace kestrin
