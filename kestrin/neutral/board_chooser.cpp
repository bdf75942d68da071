#include "kestrin/neutral/board_chooser.h"

#include <algorithm>
#include <array>

namespace kestrin {
namespace {

bool Qualifies(const CMCompsPanel& placement) {
  constexpr std::array kSetAside = {2, 3, 5, 8, 10, 11, 13, 16};
  return std::find(kSetAside.begin(), kSetAside.end(), placement.m_nValue6) == kSetAside.end();
}

}  // namespace

void BoardChooser::AddPlacement(const CMCompsPanel& placement) {
  Board& board = boards_[std::string(placement.m_sBoardName.View())];
  ++board.placements;
  if (board.ordinal == 0 && Qualifies(placement)) {
    board.ordinal = board.placements;
    board.placement = placements_;
  }
  ++placements_;
}

void BoardChooser::Choose(std::string_view boardName, BoardSelection& selection) const {
  const auto found = boards_.find(std::string(boardName));
  if (found == boards_.end() || found->second.ordinal == 0) return;
  selection.ordinal = found->second.ordinal;
  selection.placement = found->second.placement;
}

}  // namespace kestrin
