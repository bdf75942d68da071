#include "kestrin/neutral/board_chooser.h"

#include <algorithm>
#include <array>

namespace kestrin {
namespace {

bool Qualifies(const CMCompsPanel& placement) {
  constexpr std::array kExcluded = {2, 3, 5, 8, 10, 11, 13, 16};
  return std::find(kExcluded.begin(), kExcluded.end(), placement.m_nValue6) == kExcluded.end();
}

}  // namespace

void BoardChooser::AddPlacement(const CMCompsPanel& placement) {
  Board& board = BoardOf(placement.m_sBoardName.View());
  ++board.placements;
  if (board.ordinal == 0 && Qualifies(placement)) {
    board.ordinal = board.placements;
    board.placement = placements_;
  }
  ++placements_;
}

void BoardChooser::Choose(BoardSelection& selection) const {
  if (board_ == nullptr || board_->ordinal == 0) return;
  selection.ordinal = board_->ordinal;
  selection.placement = board_->placement;
}

BoardChooser::Board& BoardChooser::BoardOf(std::string_view name) {
  const auto found = boards_.find(name);
  return found != boards_.end() ? found->second : boards_.emplace(name, Board{}).first->second;
}

}  // namespace kestrin
