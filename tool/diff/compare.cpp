#include "tool/diff/compare.h"

#include <algorithm>

#include "kestrin/board/names.h"
#include "tool/diff/matching.h"

namespace kestrin::tool {
namespace {

BoardOptions OptionsOf(const Reading& reading) {
  return {.rotation = reading.rotation,
          .bottom = reading.bottom,
          .bottomTurn = reading.bottomTurn,
          .widthStep = reading.widthStep};
}

/// How far components with the same reference are apart on the two boards.
std::vector<Point> ShiftsOfComponents(const Board& before, const Board& after) {
  NameIndex names(after.components.size());
  for (Index i = 0; i < after.components.size(); ++i) names.Add(after.components[i].name, i);
  std::vector<Point> shifts;
  for (const Component& component : before.components) {
    if (const auto other = names.Find(component.name))
      shifts.push_back(Moved(after.components[*other].position, component.position));
  }
  return shifts;
}

/// The shift that more than six in ten components share; zero if there is none.
Point SharedShift(std::vector<Point> shifts) {
  const auto isBefore = [](Point a, Point b) { return a.x != b.x ? a.x < b.x : a.y < b.y; };
  std::sort(shifts.begin(), shifts.end(), isBefore);
  Point best;
  std::size_t most = 0;
  for (auto first = shifts.begin(); first != shifts.end();) {
    const auto last = std::upper_bound(first, shifts.end(), *first, isBefore);
    const auto count = static_cast<std::size_t>(last - first);
    if (count > most) best = *first;
    most = std::max(most, count);
    first = last;
  }
  return 10 * most > 6 * shifts.size() && IsFinite(best) ? best : Point{};
}

/// Moves and rounds what is compared on the board. Wires and fills are compared by their records.
void TakeOut(Board& board, Point shift) {
  for (Component& component : board.components) component.position = Moved(component.position, shift);
  for (Point& corner : board.outline) corner = Moved(corner, shift);
  for (Net& net : board.nets) {
    for (OpenConnection& open : net.open)
      open = {.from = Moved(open.from, shift), .to = Moved(open.to, shift)};
  }
}

}  // namespace

Sides ReadSides(const BoardModels& before, const BoardModels& after) {
  Sides sides;
  sides.before = {before, ReadBoard(before)};
  sides.after = {after, ReadBoard(after)};
  const Reading& reading = sides.before.board.reading;
  const Reading& other = sides.after.board.reading;
  // With another step, all widths would seem to have changed, or none.
  if (!other.isConfirmed || (reading.widthStep && other.widthStep != reading.widthStep)) {
    BoardOptions options = other.isConfirmed ? OptionsOf(other) : OptionsOf(reading);
    options.widthStep = reading.widthStep;
    sides.after.board = ReadBoard(after, options);
  }
  sides.shift = SharedShift(ShiftsOfComponents(sides.before.board, sides.after.board));
  TakeOut(sides.before.board, {});
  TakeOut(sides.after.board, sides.shift);
  return sides;
}

Difference Compare(Sides& sides) {
  Difference difference;
  if (sides.shift != Point{}) difference.shift = sides.shift;
  CompareBoards(sides, difference);
  CompareGeometries(sides, difference);
  CompareComponents(sides, difference);
  CompareNets(sides, difference);
  ComparePins(sides, difference);
  CompareWires(sides, difference);
  CompareFills(sides, difference);
  std::stable_sort(difference.changes.begin(), difference.changes.end(),
                   [](const Change& a, const Change& b) { return a.kind < b.kind; });
  return difference;
}

}  // namespace kestrin::tool
