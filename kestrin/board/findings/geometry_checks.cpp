#include "kestrin/board/findings/checks.h"
#include "kestrin/board/for_each_record.h"
#include "kestrin/board/names.h"
#include "kestrin/geometry/geometry_model.h"

namespace kestrin {
namespace {

/// Checks that padstacks exist.
class PadstackCheck {
 public:
  PadstackCheck(const CMGeom& geometry, Collector& findings) : findings_(findings) {
    ForEachRecord(geometry.m_pPins, [&](const CMGeomPin& pin, Index index) {
      pins_.Add(ComparedName(pin.m_sName.View()), index);
    });
  }

  /// Checks the padstack that a record names. The owner is worded like "component geometry".
  void Check(const CString& padstack, const void* record, std::string_view owner, const CString& ownerName) {
    const std::string_view name = ComparedName(padstack.View());
    if (name.empty()) return;
    if (pins_.Find(name)) return matches_.Match(name);
    matches_.Miss(name, [&] {
      return Finding{.message = std::string(owner) + ' ' + Quoted(ComparedName(ownerName.View())) +
                                " names padstack " + Quoted(name) + ", which does not exist",
                     .at = {findings_.PlaceOf(ImportFile::kGeometry, record)}};
    });
  }

  void Finish() { std::move(matches_).Finish(findings_); }

 private:
  Collector& findings_;
  NameIndex pins_;
  NameMatches matches_{FindingCode::kUnknownPadstack, "padstacks of geometries", "a pin geometry"};
};

template <class List>
void CheckNames(const List& list, std::string_view kind, Collector& findings) {
  NameIndex byName;
  ForEachRecord(list, [&](const auto& geometry, Index index) {
    const std::string_view name = ComparedName(geometry.m_sName.View());
    const Index first = byName.Add(name, index);
    if (first == index) return;
    findings.Add(FindingCode::kDuplicateGeometry, [&] {
      return Finding{.message = std::string(kind) + ' ' + Quoted(name) + " is there more than once",
                     .at = {findings.PlaceOf(ImportFile::kGeometry, &geometry),
                            findings.PlaceOf(ImportFile::kGeometry, list->GetAt(first))}};
    });
  });
}

}  // namespace

void CheckPadstacks(const CheckedSet& set, const Board& /*board*/, Collector& findings) {
  if (set.models.geometry == nullptr) return;
  const CMGeom& geometry = *set.models.geometry;
  PadstackCheck check(geometry, findings);
  const CMGeomBoard& board = *geometry.m_pBoard;
  check.Check(board.m_sDefaultPadstack, &board.m_sDefaultPadstack, "board", board.m_sName);
  ForEachRecord(geometry.m_pComponents, [&](const CMGeomComponent& component, Index) {
    const auto checkNamed = [&](const CString& padstack, const void* record) {
      check.Check(padstack, record, "component geometry", component.m_sName);
    };
    checkNamed(component.m_sDefaultPadstack, &component.m_sDefaultPadstack);
    ForEachRecord(component.m_pPadstackOverrides,
                  [&](const CMGeomOverride& record, Index) { checkNamed(record.m_sArg2, &record); });
  });
  check.Finish();
}

void CheckNamesOfGeometries(const CheckedSet& set, const Board& /*board*/, Collector& findings) {
  if (set.models.geometry == nullptr) return;
  const CMGeom& geometry = *set.models.geometry;
  CheckNames(geometry.m_pComponents, "component geometry", findings);
  CheckNames(geometry.m_pPins, "pin geometry", findings);
  CheckNames(geometry.m_pVias, "via geometry", findings);
  CheckNames(geometry.m_pDrawings, "drawing", findings);
  CheckNames(geometry.m_pGenericParts, "generic part", findings);
  CheckNames(geometry.m_pPanels, "panel", findings);
}

}  // namespace kestrin
