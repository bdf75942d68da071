#pragma once

/// @file
/// The nets of a board and the pins on them.

#include <cstddef>
#include <string_view>

#include "kestrin/board/board.h"
#include "kestrin/board/footprints.h"
#include "kestrin/board/names.h"

namespace kestrin {

class CMNetList;

/// The nets of a board by name. The names must outlive it.
class NetTable {
 public:
  /// With room for that many names.
  NetTable(std::size_t names, Board& board);

  /// The net of a name, which is made where there is none yet. The reference is valid until the next call.
  [[nodiscard]] Net& Of(std::string_view name) { return board_.nets[IndexOf(name)]; }
  [[nodiscard]] std::size_t IndexOf(std::string_view name);

 private:
  Board& board_;
  NameIndex byName_;
};

/// Gives the board the nets of the Neutral file with their pins, and its components' pins their nets. The
/// nets may be null.
void ReadNets(const CMNetList* nets, const Footprints& footprints, NetTable& table, Board& board);

}  // namespace kestrin
