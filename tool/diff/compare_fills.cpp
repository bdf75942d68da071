#include <algorithm>

#include "kestrin/board/polygons.h"
#include "kestrin/traces/traces_model.h"
#include "tool/diff/matching.h"
#include "tool/diff/sides.h"
#include "tool/diff/values.h"

namespace kestrin::tool {
namespace {

/// The vertices of a polygon as a text, the same for any start and direction.
std::string CycleOf(const Polygon& polygon) {
  if (polygon.empty()) return {};
  const auto isBefore = [](Point a, Point b) { return a.x != b.x ? a.x < b.x : a.y < b.y; };
  const auto from = [&](auto begin, auto end) {
    Polygon cycle(begin, end);
    std::rotate(cycle.begin(), std::min_element(cycle.begin(), cycle.end(), isBefore), cycle.end());
    return cycle;
  };
  const Polygon forward = from(polygon.begin(), polygon.end());
  const Polygon backward = from(polygon.rbegin(), polygon.rend());
  const bool isForward = std::lexicographical_compare(forward.begin(), forward.end(), backward.begin(),
                                                      backward.end(), isBefore);
  std::string text;
  for (const Point point : isForward ? forward : backward) AppendBytes(text, point);
  return text;
}

/// The vertices of a fill, an area or an island as a text.
template <class Record>
std::string CycleOf(const Record& record, double unit, Point shift) {
  Polygon polygon = VerticesOf(record, unit);
  for (Point& point : polygon) point = Moved(point, shift);
  return CycleOf(polygon);
}

/// The polygons of a list as texts, sorted.
template <class List>
std::string CyclesOf(const List& list, double unit, Point shift) {
  std::vector<std::string> cycles;
  ForEachRecord(list, [&](const auto& record, Index) { cycles.push_back(CycleOf(record, unit, shift)); });
  std::sort(cycles.begin(), cycles.end());
  std::string text;
  for (const std::string& cycle : cycles) text.append(cycle).append("|");
  return text;
}

std::vector<Matchable> FillsOf(const BoardSide& side, Point shift, const Sides* renaming) {
  std::vector<Matchable> fills;
  if (side.models.traces == nullptr) return fills;
  const double unit = side.board.units.traces;
  ForEachRecord(side.models.traces->m_pFilArray, [&](const CMTracesFIL& fill, Index) {
    Matchable& made = fills.emplace_back();
    const std::string_view net = ComparedName(fill.m_sName1.View());
    made.net = renaming == nullptr ? net : renaming->NameAfter(net);
    made.key = made.net + '\n' + std::string(ComparedName(fill.m_sName2.View())) + '\n';
    made.key += CycleOf(fill, unit, shift) + '/';
    made.key += CyclesOf(fill.m_pAreArray, unit, shift) + '/' + CyclesOf(fill.m_pArsArray, unit, shift) + '/';
    made.key += CyclesOf(fill.m_pIslArray, unit, shift) + '/' + CyclesOf(fill.m_pIssArray, unit, shift);
  });
  return fills;
}

}  // namespace

void CompareFills(const Sides& sides, Difference& difference) {
  std::vector<Matchable> before = FillsOf(sides.before, {}, &sides);
  std::vector<Matchable> after = FillsOf(sides.after, sides.shift, nullptr);
  Match(before, after, [](const Matchable& fill) { return std::string_view(fill.key); });
  ReportUnmatched(ChangedKind::kFill, sides, before, after, difference);
}

}  // namespace kestrin::tool
