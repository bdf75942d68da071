#include <set>
#include <unordered_map>

#include "tool/diff/sides.h"
#include "tool/diff/values.h"

namespace kestrin::tool {
namespace {

/// The net of each pin, by the pin's name.
using NetsOfPins = std::unordered_map<std::string_view, std::string_view>;

NetsOfPins NetsOfPinsOf(const Board& board) {
  NetsOfPins nets;
  nets.reserve(board.netPins.size());
  for (const Net& net : board.nets) {
    for (const NetPin& pin : board.PinsOf(net)) nets.emplace(pin.name, net.name);
  }
  return nets;
}

/// The names of things with a change of a kind and type.
std::set<std::string_view> NamesOf(const Difference& difference, ChangedKind kind, ChangeType type) {
  std::set<std::string_view> names;
  for (const Change& change : difference.changes) {
    if (change.kind == kind && change.type == type) names.insert(change.name);
  }
  return names;
}

}  // namespace

/// Compares the nets of pins. Where a pin is follows from its component and geometry, and so is not compared.
/// A pin that only follows a net or a component that was added or removed is not reported, either.
void ComparePins(const Sides& sides, Difference& difference) {
  const NetsOfPins before = NetsOfPinsOf(sides.before.board);
  const NetsOfPins after = NetsOfPinsOf(sides.after.board);
  const auto addedNets = NamesOf(difference, ChangedKind::kNet, ChangeType::kAdded);
  const auto removedNets = NamesOf(difference, ChangedKind::kNet, ChangeType::kRemoved);
  const auto removed = NamesOf(difference, ChangedKind::kComponent, ChangeType::kRemoved);
  const auto added = NamesOf(difference, ChangedKind::kComponent, ChangeType::kAdded);
  std::vector<Change> changes;
  const auto componentOf = [](const Board& board, const NetPin& pin) {
    return pin.component ? std::string_view(board.components[*pin.component].name) : std::string_view();
  };
  const auto add = [&](const NetPin& pin, std::string_view from, std::string_view to) {
    std::vector<Detail> details;
    CompareValue(details, "net", from, to);
    const ChangeType type = from.empty() ? ChangeType::kAdded
                            : to.empty() ? ChangeType::kRemoved
                                         : ChangeType::kChanged;
    // A pin on the board does not come or go with its net.
    changes.push_back(
        {ChangedKind::kPin, pin.name, pin.pin ? ChangeType::kChanged : type, std::move(details)});
  };
  for (const Net& net : sides.before.board.nets) {
    for (const NetPin& pin : sides.before.board.PinsOf(net)) {
      const auto found = after.find(pin.name);
      const std::string_view now = found == after.end() ? std::string_view() : found->second;
      if (now == sides.NameAfter(net.name)) continue;
      const bool follows = now.empty() && (removedNets.contains(net.name) ||
                                           removed.contains(componentOf(sides.before.board, pin)));
      if (!follows) add(pin, net.name, now);
    }
  }
  for (const Net& net : sides.after.board.nets) {
    for (const NetPin& pin : sides.after.board.PinsOf(net)) {
      if (before.contains(pin.name)) continue;
      const bool follows =
          addedNets.contains(net.name) || added.contains(componentOf(sides.after.board, pin));
      if (!follows) add(pin, {}, net.name);
    }
  }
  std::move(changes.begin(), changes.end(), std::back_inserter(difference.changes));
}

}  // namespace kestrin::tool
