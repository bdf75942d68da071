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
    if (detail.what == "name") continue;
    text += detail.before == detail.after
                ? ": other open connections"
                : ": " + TextOf(detail.after) + " open connections, before " + TextOf(detail.before);
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

/// A member as words: "pin defs" for "m_pPinDefs".
std::string WordsOf(std::string_view what) {
  if (!what.starts_with("m_")) return std::string(what);
  std::string words;
  for (const char c : what.substr(std::min<std::size_t>(3, what.size()))) {
    const bool isCapital = c >= 'A' && c <= 'Z';
    if (isCapital && !words.empty()) words += ' ';
    words += isCapital ? static_cast<char>(c - 'A' + 'a') : c;
  }
  return words;
}

/// "geometry CHIP_0805: height 0.8 is now 0.9, pin defs differ".
std::string OtherText(std::string_view kind, const Change& change) {
  std::string text;
  for (const Detail& detail : change.details) {
    const bool hasValues = !std::holds_alternative<std::monostate>(detail.before) ||
                           !std::holds_alternative<std::monostate>(detail.after);
    text += (text.empty() ? "" : ", ") + WordsOf(detail.what);
    text += hasValues ? ' ' + TextOf(detail.before) + " is now " + TextOf(detail.after) : " changed";
  }
  return std::string(kind) + (change.name.empty() ? "" : ' ' + change.name) + ": " + text;
}

std::string TextOf(const Sides& sides, const Change& change, std::string_view kind) {
  if (change.kind == ChangedKind::kProperty) return PropertyText(change);
  if (change.kind == ChangedKind::kPin) return PinText(change);
  if (change.type == ChangeType::kAdded) return std::string(kind) + ' ' + change.name + " was added";
  if (change.type == ChangeType::kRemoved) return std::string(kind) + ' ' + change.name + " was removed";
  if (change.kind == ChangedKind::kComponent) return ComponentText(change);
  if (change.kind == ChangedKind::kNet) return NetText(sides, change);
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
