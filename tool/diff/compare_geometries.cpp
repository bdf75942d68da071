#include <map>

#include "kestrin/board/for_each_record.h"
#include "kestrin/geometry/geometry_fields.h"
#include "kestrin/tech/tech_model.h"
#include "tool/diff/field_texts.h"
#include "tool/diff/sides.h"

namespace kestrin::tool {
namespace {

/// Appends a detail for each field that differs, but for the name.
template <class Record>
void CompareFields(std::vector<Detail>& details, const Record& before, const Record& after) {
  const auto texts = FieldTextsOf(before);
  const auto otherTexts = FieldTextsOf(after);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    if (std::string_view(texts[i].first) == "m_sName" || AreEqual(texts[i].second, otherTexts[i].second))
      continue;
    details.push_back({texts[i].first, ShownValueOf(texts[i].second), ShownValueOf(otherTexts[i].second)});
  }
}

/// The geometries of a list by name. Of equal names, the first counts.
template <class List>
[[nodiscard]] auto NamedIn(const List& list) {
  std::map<std::string_view, decltype(list->GetAt(0))> named;
  ForEachRecord(list, [&](const auto& geometry, Index index) {
    named.emplace(ComparedName(geometry.m_sName.View()), list->GetAt(index));
  });
  return named;
}

template <class List>
void CompareLists(ChangedKind kind, const List& before, const List& after, Difference& difference) {
  const auto named = NamedIn(before);
  const auto otherNamed = NamedIn(after);
  for (const auto& [name, geometry] : named) {
    const auto found = otherNamed.find(name);
    if (found == otherNamed.end()) {
      difference.changes.push_back({kind, std::string(name), ChangeType::kRemoved, {}});
      continue;
    }
    std::vector<Detail> details;
    CompareFields(details, *geometry, *found->second);
    if (!details.empty())
      difference.changes.push_back({kind, std::string(name), ChangeType::kChanged, std::move(details)});
  }
  for (const auto& [name, geometry] : otherNamed) {
    if (!named.contains(name))
      difference.changes.push_back({kind, std::string(name), ChangeType::kAdded, {}});
  }
}

/// The via rules of the Tech file, by the name of the via.
std::map<std::string_view, std::string> ViaRulesOf(const BoardModels& models) {
  std::map<std::string_view, std::string> rules;
  if (models.tech == nullptr) return rules;
  ForEachRecord(models.tech->m_pViaArray, [&](const CMTechVia& rule, Index) {
    std::string& text = rules[ComparedName(rule.m_sArg1.View())];
    text += (text.empty() ? "" : "; ") + ContentOf(rule.m_sArg2) + ", " + ContentOf(rule.m_sArgLast);
  });
  return rules;
}

void CompareViaRules(const Sides& sides, Difference& difference) {
  const auto rules = ViaRulesOf(sides.before.models);
  const auto others = ViaRulesOf(sides.after.models);
  const auto add = [&](std::string_view via, std::string_view before, std::string_view after) {
    difference.changes.push_back({ChangedKind::kVia,
                                  std::string(via),
                                  ChangeType::kChanged,
                                  {{"rule", ValueOf(before), ValueOf(after)}}});
  };
  for (const auto& [via, rule] : rules) {
    const auto found = others.find(via);
    const std::string_view other =
        found == others.end() ? std::string_view() : std::string_view(found->second);
    if (rule != other) add(via, rule, other);
  }
  for (const auto& [via, rule] : others) {
    if (!rules.contains(via)) add(via, {}, rule);
  }
}

}  // namespace

void CompareGeometries(const Sides& sides, Difference& difference) {
  const CMGeom none;
  const CMGeom& before = sides.before.models.geometry ? *sides.before.models.geometry : none;
  const CMGeom& after = sides.after.models.geometry ? *sides.after.models.geometry : none;
  CompareLists(ChangedKind::kGeometry, before.m_pComponents, after.m_pComponents, difference);
  CompareLists(ChangedKind::kGeometry, before.m_pDrawings, after.m_pDrawings, difference);
  CompareLists(ChangedKind::kGeometry, before.m_pGenericParts, after.m_pGenericParts, difference);
  CompareLists(ChangedKind::kGeometry, before.m_pPanels, after.m_pPanels, difference);
  CompareLists(ChangedKind::kPadstack, before.m_pPins, after.m_pPins, difference);
  CompareLists(ChangedKind::kVia, before.m_pVias, after.m_pVias, difference);
  if (sides.before.models.tech != nullptr && sides.after.models.tech != nullptr)
    CompareViaRules(sides, difference);
}

}  // namespace kestrin::tool
