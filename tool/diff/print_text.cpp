#include <algorithm>
#include <cstdio>
#include <map>

#include "kestrin/board/millimetres.h"
#include "tool/diff/print.h"
#include "tool/diff/values.h"
#include "tool/readable_text.h"

namespace kestrin::tool {
namespace {

constexpr std::size_t kShown = 20;  // of each kind

const Detail* Find(const Change& change, std::string_view what) {
  const auto found = std::find_if(change.details.begin(), change.details.end(),
                                  [&](const Detail& detail) { return detail.what == what; });
  return found == change.details.end() ? nullptr : &*found;
}

double Growth(const Detail* detail) {
  return detail == nullptr ? 0.0 : std::get<double>(detail->after) - std::get<double>(detail->before);
}

/// "part A is now B".
std::string NowText(const Detail& detail) {
  return detail.what + ' ' + TextOf(detail.before) + " is now " + TextOf(detail.after);
}

/// "moved by (1.2, 0) mm and turned by 90, part A is now B".
std::string ComponentText(const Change& change) {
  const double x = Rounded(Growth(Find(change, "x")));
  const double y = Rounded(Growth(Find(change, "y")));
  const double turn = Growth(Find(change, "rotation"));
  std::string text;
  if (x != 0.0 || y != 0.0) text = "moved by (" + TextOf(x) + ", " + TextOf(y) + ") mm";
  if (turn != 0.0) text += (text.empty() ? "turned by " : " and turned by ") + TextOf(turn);
  for (const Detail& detail : change.details) {
    if (detail.what == "x" || detail.what == "y" || detail.what == "rotation") continue;
    text += (text.empty() ? "" : ", ") + NowText(detail);
  }
  return "component " + change.name + (text.starts_with("moved") || text.starts_with("turned") ? " " : ": ") +
         text;
}

std::string PropertyText(const Change& change) {
  const Detail& detail = change.details.front();
  switch (change.type) {
    case ChangeType::kAdded: return change.name + ": " + detail.what + " is new: " + TextOf(detail.after);
    case ChangeType::kRemoved: return change.name + ": " + detail.what + " is gone: " + TextOf(detail.before);
    default: return change.name + ": " + NowText(detail);
  }
}

std::string NetText(const Sides& sides, const Change& change) {
  std::string text;
  for (const Detail& detail : change.details) {
    if (detail.what != "name")
      text += ", open connections: " + TextOf(detail.before) + " before, " + TextOf(detail.after) + " after";
  }
  if (change.type != ChangeType::kRenamed) return "net " + change.name + text;
  const auto& nets = sides.before.board.nets;
  const auto net =
      std::find_if(nets.begin(), nets.end(), [&](const Net& n) { return n.name == change.name; });
  const std::size_t pins = net == nets.end() ? 0 : net->pins.count;
  return "net " + change.name + " is now " + TextOf(change.details.front().after) + " (same " +
         std::to_string(pins) + (pins == 1 ? " pin)" : " pins)") + text;
}

std::string PinText(const Change& change) {
  const Detail& net = change.details.front();
  if (std::holds_alternative<std::monostate>(net.after))
    return "pin " + change.name + " is no longer in net " + TextOf(net.before);
  if (std::holds_alternative<std::monostate>(net.before))
    return "pin " + change.name + " is now in net " + TextOf(net.after);
  return "pin " + change.name + " is now in net " + TextOf(net.after) + ", before in " + TextOf(net.before);
}

/// The members of a geometry, without the prefixes of the model: "pin definitions" for "m_pPinDefs".
std::string OtherText(std::string_view kind, const Change& change) {
  std::string text = std::string(kind) + ' ' + change.name;
  std::string parts;
  for (const Detail& detail : change.details) parts += (parts.empty() ? "" : ", ") + detail.what;
  return parts.empty() ? text : text + ": " + parts + (change.details.size() == 1 ? " differs" : " differ");
}

std::string TextOf(const Sides& sides, const Change& change, std::string_view kind) {
  if (change.kind == ChangedKind::kProperty) return PropertyText(change);
  if (change.kind == ChangedKind::kPin) return PinText(change);
  if (change.type == ChangeType::kAdded) return std::string(kind) + ' ' + change.name + " was added";
  if (change.type == ChangeType::kRemoved) return std::string(kind) + ' ' + change.name + " was removed";
  if (change.kind == ChangedKind::kComponent) return ComponentText(change);
  if (change.kind == ChangedKind::kNet) return NetText(sides, change);
  if (change.kind == ChangedKind::kLayer && change.details.size() == 1)
    return "layer " + change.name + ": " + NowText(change.details.front());
  return OtherText(kind, change);
}

/// "VIN: 2 wires have another width", for all wires or fills of a net that changed in the same way.
std::vector<std::string> GroupedTexts(const std::vector<const Change*>& changes, std::string_view one,
                                      std::string_view many) {
  std::map<std::pair<std::string, std::string>, std::size_t> counts;
  for (const Change* change : changes) {
    std::string what = change->type == ChangeType::kAdded ? "added" : "removed";
    if (change->type == ChangeType::kChanged) {
      what.clear();
      for (const Detail& detail : change->details)
        what += (what.empty() ? "another " : " and another ") + detail.what;
    }
    ++counts[{change->name, what}];
  }
  std::vector<std::string> texts;
  for (const auto& [key, count] : counts) {
    const bool isOne = count == 1;
    const std::string verb =
        key.second.starts_with("another") ? (isOne ? " has " : " have ") : (isOne ? " was " : " were ");
    texts.push_back(key.first + ": " + std::to_string(count) + ' ' + std::string(isOne ? one : many) + verb +
                    key.second);
  }
  return texts;
}

struct KindWords {
  ChangedKind kind;
  std::string_view one;
  std::string_view many;
};
constexpr KindWords kKinds[] = {
    {ChangedKind::kBoard, "board", "boards"},
    {ChangedKind::kLayer, "layer", "layers"},
    {ChangedKind::kGeometry, "geometry", "geometries"},
    {ChangedKind::kPadstack, "padstack", "padstacks"},
    {ChangedKind::kVia, "via", "vias"},
    {ChangedKind::kComponent, "component", "components"},
    {ChangedKind::kProperty, "property", "properties"},
    {ChangedKind::kNet, "net", "nets"},
    {ChangedKind::kPin, "pin", "pins"},
    {ChangedKind::kWire, "wire", "wires"},
    {ChangedKind::kFill, "fill", "fills"},
};

void PrintKind(const Sides& sides, const Difference& difference, const KindWords& words, bool all) {
  std::vector<const Change*> changes;
  for (const Change& change : difference.changes) {
    if (change.kind == words.kind) changes.push_back(&change);
  }
  if (changes.empty()) return;
  std::vector<std::string> texts;
  if (words.kind == ChangedKind::kWire || words.kind == ChangedKind::kFill) {
    texts = GroupedTexts(changes, words.one, words.many);
  } else {
    for (const Change* change : changes) texts.push_back(TextOf(sides, *change, words.one));
  }
  const std::string_view word = changes.size() == 1 ? words.one : words.many;
  std::printf("%zu %s\n", changes.size(), std::string(word).c_str());
  const std::size_t shown = all ? texts.size() : std::min(kShown, texts.size());
  for (std::size_t i = 0; i < shown; ++i) std::printf("  %s\n", ToTerminal(texts[i]).c_str());
  if (shown < texts.size()) std::printf("  ... and %zu more; --all shows them\n", texts.size() - shown);
}

}  // namespace

void PrintDifference(const Sides& sides, const Difference& difference, bool all) {
  if (const auto& shift = difference.shift)
    std::printf("the whole board moved by (%s, %s) mm\n", TextOf(shift->x).c_str(), TextOf(shift->y).c_str());
  for (const KindWords& words : kKinds) PrintKind(sides, difference, words, all);
  if (!difference.shift && difference.changes.empty()) std::puts("no difference");
}

}  // namespace kestrin::tool
