#include <algorithm>
#include <iterator>
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
/// Nor are pins that came or went with their net, or went with their component.
void ComparePins(const Sides& sides, Difference& difference) {
  const NetsOfPins before = NetsOfPinsOf(sides.before.board);
  const NetsOfPins after = NetsOfPinsOf(sides.after.board);
  const auto addedNets = NamesOf(difference, ChangedKind::kNet, ChangeType::kAdded);
  const auto removedNets = NamesOf(difference, ChangedKind::kNet, ChangeType::kRemoved);
  const auto removed = NamesOf(difference, ChangedKind::kComponent, ChangeType::kRemoved);
  std::vector<Change> changes;
  const auto add = [&](const NetPin& pin, ChangeType type, Value from, Value to) {
    // A pin of a component does not come or go with its net.
    changes.push_back({ChangedKind::kPin,
                       pin.name,
                       pin.pin ? ChangeType::kChanged : type,
                       {{"net", std::move(from), std::move(to)}}});
  };
  for (const Net& net : sides.before.board.nets) {
    for (const NetPin& pin : sides.before.board.PinsOf(net)) {
      const auto found = after.find(pin.name);
      if (found != after.end()) {
        if (found->second != sides.NameAfter(net.name))
          add(pin, ChangeType::kChanged, net.name, std::string(found->second));
        continue;
      }
      const bool isGone =
          pin.component && removed.contains(sides.before.board.components[*pin.component].name);
      if (!isGone && !removedNets.contains(net.name)) add(pin, ChangeType::kRemoved, net.name, {});
    }
  }
  for (const Net& net : sides.after.board.nets) {
    if (addedNets.contains(net.name)) continue;
    for (const NetPin& pin : sides.after.board.PinsOf(net)) {
      if (!before.contains(pin.name)) add(pin, ChangeType::kAdded, {}, net.name);
    }
  }
  std::move(changes.begin(), changes.end(), std::back_inserter(difference.changes));
}

}  // namespace kestrin::tool
