#include "kestrin/neutral/board_selection.h"

#include <algorithm>
#include <array>

namespace kestrin {
namespace {

bool Qualifies(const CMCompsPanel& placement) {
  constexpr std::array kSetAside = {2, 3, 5, 8, 10, 11, 13, 16};
  return std::find(kSetAside.begin(), kSetAside.end(), placement.m_nValue6) == kSetAside.end();
}

}  // namespace

void BoardSelection::Choose(const CArray<CMCompsPanel*, CMCompsPanel*>& placements,
                            std::string_view boardName) {
  int ordinal = 0;
  for (std::int64_t i = 0; i < placements.GetSize(); ++i) {
    if (placements[i]->m_sBoardName.View() != boardName) continue;
    ++ordinal;
    if (!Qualifies(*placements[i])) continue;
    ordinal_ = ordinal;
    placement_ = i;
    return;
  }
}

}  // namespace kestrin
