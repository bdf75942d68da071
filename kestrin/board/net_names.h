#pragma once

/// @file
/// The names of nets.

#include <vector>

#include "kestrin/board/board.h"

namespace kestrin {

struct BoardModels;

/// The nets that records name, as indexes into Board::nets.
struct NetsOfRecords {
  std::vector<Index> netRecords;  ///< for each of CMNetList::m_pNets
  std::vector<Index> fills;       ///< for each of CMTraces::m_pFilArray; 0 for fills without areas
};

/// Adds every net that a net record, a header or a fill with areas names to the board, with its net records
/// and headers. All of them are known then, so the parts of nets can be read at the same time.
[[nodiscard]] NetsOfRecords ReadNetNames(const BoardModels& models, Board& board);

}  // namespace kestrin
