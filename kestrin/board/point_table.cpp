#include "kestrin/board/point_table.h"

#include <bit>

namespace kestrin {

void PointTable::Assign(const std::vector<Point>& points) {
  entries_.assign(std::bit_ceil(2 * points.size() + 1), {});
  for (std::size_t i = 0; i < points.size(); ++i) {
    if (!HasCell(points[i])) continue;
    const std::size_t first = CellOf(points[i]).Hash();
    for (std::size_t probe = 0; probe < kProbes; ++probe) {
      Entry& entry = entries_[(first + probe) & (entries_.size() - 1)];
      if (entry.index != kFree) continue;
      entry = {points[i], static_cast<std::uint32_t>(i)};
      break;
    }
  }
}

std::size_t PointTable::Cell::Hash() const noexcept {
  constexpr std::uint64_t kFactor = 0x9e3779b97f4a7c15;
  const std::uint64_t mixed =
      (static_cast<std::uint64_t>(column) * kFactor + static_cast<std::uint64_t>(row)) * kFactor;
  return static_cast<std::size_t>(mixed >> 32);  // the upper half of a product depends on all bits
}

}  // namespace kestrin
