#pragma once

/// @file
/// Selecting the sections of a board by its placements on the panel.

#include <cstdint>
#include <functional>
#include <map>
#include <string>
#include <string_view>

#include "kestrin/neutral/board_selection.h"
#include "kestrin/neutral/component_model.h"

namespace kestrin {

/// Finds, for every board, its first placement that qualifies. If that is the third placement of the board,
/// the third nets section and the third component section are read. A placement qualifies unless its value 6
/// is one of the excluded numbers.
class BoardChooser {
 public:
  void AddPlacement(const CMCompsPanel& placement);

  /// Sets the name of the board that Choose looks at.
  void SetBoard(std::string_view name) { board_ = &BoardOf(name); }

  /// Updates the selection from the placements added so far. Leaves it unchanged if the board has no
  /// placement that qualifies.
  void Choose(BoardSelection& selection) const;

 private:
  struct Board {
    std::int64_t placements = 0;
    std::int64_t ordinal = 0;  // 0 until a placement qualifies
    std::int64_t placement = -1;
  };

  Board& BoardOf(std::string_view name);

  std::map<std::string, Board, std::less<>> boards_;  // no hash table: a file could make its names collide
  const Board* board_ = nullptr;                      // null until SetBoard is called
  std::int64_t placements_ = 0;
};

}  // namespace kestrin
