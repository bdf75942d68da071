#include <algorithm>
#include <set>

#include "tool/diff/sides.h"
#include "tool/diff/values.h"

namespace kestrin::tool {
namespace {

using NetsByName = std::map<std::string_view, const Net*>;

NetsByName NetsOf(const Board& board) {
  NetsByName nets;
  for (const Net& net : board.nets) nets.emplace(net.name, &net);
  return nets;
}

/// The pins of a net as one text, the same in any order.
std::string PinSetOf(const Board& board, const Net& net) {
  std::vector<std::string_view> names;
  for (const NetPin& pin : board.PinsOf(net)) names.push_back(pin.name);
  std::sort(names.begin(), names.end());
  std::string set;
  for (const std::string_view name : names) set.append(name).append("\n");
  return set;
}

/// Finds nets that have another name on the second board: those with equal pins, if no other net has them.
void FindRenamedNets(Sides& sides, const NetsByName& nets, const NetsByName& others) {
  std::map<std::string, const Net*> added;
  for (const auto& [name, net] : others) {
    if (!nets.contains(name) && net->pins.count != 0) added.emplace(PinSetOf(sides.after.board, *net), net);
  }
  for (const auto& [name, net] : nets) {
    if (others.contains(name) || net->pins.count == 0) continue;
    const auto found = added.find(PinSetOf(sides.before.board, *net));
    if (found == added.end()) continue;
    sides.renamedNets.emplace(name, found->second->name);
    added.erase(found);
  }
}

/// The open connections of a net as texts, the same in both directions.
std::multiset<std::string> OpenConnectionsOf(const Net& net) {
  std::multiset<std::string> connections;
  const auto textOf = [](Point point) { return TextOf(point.x) + ' ' + TextOf(point.y); };
  for (const OpenConnection& open : net.open) {
    std::string from = textOf(open.from);
    std::string to = textOf(open.to);
    if (to < from) std::swap(from, to);
    connections.insert(from.append(" ").append(to));
  }
  return connections;
}

void CompareOpenConnections(std::vector<Detail>& details, const Net& before, const Net& after) {
  if (OpenConnectionsOf(before) == OpenConnectionsOf(after)) return;
  details.push_back(
      {"open", static_cast<double>(before.open.size()), static_cast<double>(after.open.size())});
}

}  // namespace

void CompareNets(Sides& sides, Difference& difference) {
  const NetsByName nets = NetsOf(sides.before.board);
  const NetsByName others = NetsOf(sides.after.board);
  FindRenamedNets(sides, nets, others);
  std::set<std::string_view> known;
  for (const Net& net : sides.before.board.nets) {
    const std::string_view nameAfter = sides.NameAfter(net.name);
    const auto found = others.find(nameAfter);
    if (found == others.end()) {
      difference.changes.push_back({ChangedKind::kNet, net.name, ChangeType::kRemoved, {}});
      sides.onlyBefore.insert(net.name);
      continue;
    }
    known.insert(found->first);
    std::vector<Detail> details;
    CompareName(details, "name", net.name, nameAfter);
    const ChangeType type = details.empty() ? ChangeType::kChanged : ChangeType::kRenamed;
    CompareOpenConnections(details, net, *found->second);
    if (!details.empty())
      difference.changes.push_back({ChangedKind::kNet, net.name, type, std::move(details)});
  }
  for (const Net& net : sides.after.board.nets) {
    if (known.contains(net.name)) continue;
    difference.changes.push_back({ChangedKind::kNet, net.name, ChangeType::kAdded, {}});
    sides.onlyAfter.insert(net.name);
  }
}

}  // namespace kestrin::tool
