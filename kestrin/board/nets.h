#pragma once

/// @file
/// The nets of a board and their pins.

#include <cstddef>
#include <string_view>

#include "kestrin/board/board.h"
#include "kestrin/board/footprints.h"
#include "kestrin/board/names.h"

namespace kestrin {

class CMNetList;

/// The nets of a board by name. Does not copy the names: they must outlive it.
class NetTable {
 public:
  /// Reserves room for a number of names.
  NetTable(std::size_t names, Board& board);

  /// The net of a name. Adds a net to the board if there is none. The reference is valid until the next call.
  [[nodiscard]] Net& Of(std::string_view name) { return board_.nets[IndexOf(name)]; }
  [[nodiscard]] Index IndexOf(std::string_view name);

 private:
  Board& board_;
  NameIndex byName_;
};

/// Adds the nets of the Neutral file with their pins to the board, and sets the nets of the components' pins.
/// The nets may be null.
void ReadNets(const CMNetList* nets, const Footprints& footprints, NetTable& table, Board& board);

}  // namespace kestrin
