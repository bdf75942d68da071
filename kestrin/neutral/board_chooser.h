#pragma once

/// @file
/// Choosing a board by its placements on the panel.

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "kestrin/neutral/board_selection.h"
#include "kestrin/neutral/component_model.h"

namespace kestrin {

/// Knows, for every board, the first of its placements that qualifies: one whose value 6 is none of the
/// numbers set aside. Its place among the placements of its board is the ordinal of the sections to read.
class BoardChooser {
 public:
  void AddPlacement(const CMCompsPanel& placement);

  /// Names the board to choose for.
  void SetBoard(std::string_view name) { board_ = &BoardOf(name); }

  /// Chooses by the placements added so far; without one of the board that qualifies the choice stays.
  void Choose(BoardSelection& selection) const;

 private:
  struct Board {
    std::int64_t placements = 0;
    std::int64_t ordinal = 0;  // 0 while none qualifies
    std::int64_t placement = -1;
  };

  Board& BoardOf(std::string_view name);

  std::map<std::string, Board, std::less<>> boards_;  // a file could make the names of a hash table collide
  const Board* board_ = nullptr;                      // null before it is named
  std::int64_t placements_ = 0;
};

}  // namespace kestrin
