#include <algorithm>
#include <map>

#include "kestrin/board/for_each_record.h"
#include "kestrin/board/names.h"
#include "kestrin/neutral/neutral_fields.h"
#include "tool/diff/field_texts.h"
#include "tool/diff/sides.h"

namespace kestrin::tool {
namespace {

using Properties = std::map<std::string_view, std::string>;

/// Whether to compare the places of references. If a component moves, they follow it.
enum class References { kCompared, kNotCompared };

/// The properties of a component. If it has several of one name, their values are joined.
Properties PropertiesOf(const CMCompsInfo& record, References references) {
  Properties properties;
  const auto add = [&](std::string_view name, const std::string& value) {
    std::string& joined = properties[ComparedName(name)];
    joined += (joined.empty() ? "" : ", ") + value;
  };
  ForEachRecord(record.m_pComments, [&](const tagMCOMPCOMMENT& comment, Index) {
    add(comment.m_sName.View(), ContentOf(comment.m_sValue));
  });
  if (references == References::kNotCompared) return properties;
  ForEachRecord(record.m_pRefLocs,
                [&](const CMCompsRefLoc& place, Index) { add("REFLOC", ContentOf(place)); });
  return properties;
}

const CMCompsInfo& RecordOf(const BoardSide& side, const Component& component) {
  return *side.models.components->m_pInfos->GetAt(component.sourceIndex);
}

void CompareProperties(const std::string& component, const Properties& before, const Properties& after,
                       Difference& difference) {
  const auto add = [&](ChangeType type, std::string_view what, Value from, Value to) {
    difference.changes.push_back(
        {ChangedKind::kProperty, component, type, {{std::string(what), std::move(from), std::move(to)}}});
  };
  for (const auto& [name, value] : before) {
    const auto found = after.find(name);
    if (found == after.end()) {
      add(ChangeType::kRemoved, name, value, {});
    } else if (!AreEqual(value, found->second)) {
      add(ChangeType::kChanged, name, value, found->second);
    }
  }
  for (const auto& [name, value] : after) {
    if (!before.contains(name)) add(ChangeType::kAdded, name, {}, value);
  }
}

std::vector<Detail> DetailsOf(const Component& before, const Component& after) {
  const auto nameOf = [](Side side) { return side == Side::kTop ? "top" : "bottom"; };
  std::vector<Detail> details;
  CompareName(details, "part", before.part, after.part);
  CompareName(details, "symbol", before.symbol, after.symbol);
  CompareName(details, "geometry", before.geometry, after.geometry);
  CompareValue(details, "x", before.position.x, after.position.x);
  CompareValue(details, "y", before.position.y, after.position.y);
  CompareValue(details, "rotation", before.rotation, after.rotation);
  CompareName(details, "side", nameOf(before.side), nameOf(after.side));
  return details;
}

/// Components by reference. Of equal references, the first counts.
NameIndex IndexOf(const Board& board) {
  NameIndex index(board.components.size());
  for (Index i = 0; i < board.components.size(); ++i) index.Add(board.components[i].name, i);
  return index;
}

}  // namespace

void CompareComponents(const Sides& sides, Difference& difference) {
  const NameIndex names = IndexOf(sides.before.board);
  const NameIndex otherNames = IndexOf(sides.after.board);
  const std::vector<Component>& components = sides.before.board.components;
  const std::vector<Component>& others = sides.after.board.components;
  std::vector<Change>& changes = difference.changes;
  for (Index i = 0; i < components.size(); ++i) {
    const Component& component = components[i];
    if (names.Find(component.name) != i) continue;
    const auto found = otherNames.Find(component.name);
    if (!found) {
      changes.push_back({ChangedKind::kComponent, component.name, ChangeType::kRemoved, {}});
      continue;
    }
    const Component& other = others[*found];
    std::vector<Detail> details = DetailsOf(component, other);
    const bool isInPlace = std::none_of(details.begin(), details.end(), [](const Detail& detail) {
      return detail.what == "x" || detail.what == "y" || detail.what == "rotation" || detail.what == "side";
    });
    const auto references = isInPlace && !difference.shift ? References::kCompared : References::kNotCompared;
    if (!details.empty())
      changes.push_back({ChangedKind::kComponent, component.name, ChangeType::kChanged, std::move(details)});
    CompareProperties(component.name, PropertiesOf(RecordOf(sides.before, component), references),
                      PropertiesOf(RecordOf(sides.after, other), references), difference);
  }
  for (Index i = 0; i < others.size(); ++i) {
    if (otherNames.Find(others[i].name) == i && !names.Find(others[i].name))
      changes.push_back({ChangedKind::kComponent, others[i].name, ChangeType::kAdded, {}});
  }
}

}  // namespace kestrin::tool
