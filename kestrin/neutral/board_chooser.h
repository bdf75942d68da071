#pragma once

/// @file
/// Choosing a board by its placements on the panel.

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

#include "kestrin/neutral/board_selection.h"
#include "kestrin/neutral/component_model.h"

namespace kestrin {

/// Knows, for every board, the first of its placements that qualifies: one whose value 6 is none of the
/// numbers set aside. Its place among the placements of its board is the ordinal of the sections to read.
class BoardChooser {
 public:
  void AddPlacement(const CMCompsPanel& placement);

  /// Chooses by the placements added so far; without one of this board that qualifies the choice stays.
  void Choose(std::string_view boardName, BoardSelection& selection) const;

 private:
  struct Board {
    std::int64_t placements = 0;
    std::int64_t ordinal = 0;  // 0 while none qualifies
    std::int64_t placement = -1;
  };

  std::unordered_map<std::string, Board> boards_;
  std::int64_t placements_ = 0;
};

}  // namespace kestrin
