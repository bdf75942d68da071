#include <optional>

#include "kestrin/board/findings/checks.h"
#include "kestrin/board/for_each_record.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// The units that files and geometries name. The first of each size is kept.
class UnitsInUse {
 public:
  void Use(const CString& word, std::string_view owner, FindingPlace place) {
    const auto size = MillimetresIn(word.View());
    if (!size) return;
    for (const double known : sizes_) {
      if (known == *size) return;
    }
    sizes_.push_back(*size);
    places_.push_back(place);
    text_ += std::string(text_.empty() ? "" : ", ") + std::string(ComparedName(word.View())) + " in " +
             std::string(owner);
  }

  void Report(Collector& findings) {
    if (sizes_.size() < 2) return;
    findings.Add(FindingCode::kUnitMismatch,
                 [&] { return Finding{.message = "units differ: " + text_, .at = places_}; });
  }

 private:
  std::vector<double> sizes_;
  std::vector<FindingPlace> places_;
  std::string text_;
};

template <class List>
void UseUnitsOf(const List& geometries, UnitsInUse& units, const Collector& findings) {
  ForEachRecord(geometries, [&](const auto& geometry, Index) {
    units.Use(geometry.m_sUnits, "geometry " + Quoted(ComparedName(geometry.m_sName.View())),
              findings.PlaceOf(ImportFile::kGeometry, &geometry.m_sUnits));
  });
}

void UseUnitsOf(const CMGeom& geometry, UnitsInUse& units, const Collector& findings) {
  const CMGeomBoard& board = *geometry.m_pBoard;
  units.Use(board.m_sUnits, "the board geometry", findings.PlaceOf(ImportFile::kGeometry, &board.m_sUnits));
  UseUnitsOf(geometry.m_pComponents, units, findings);
  UseUnitsOf(geometry.m_pPins, units, findings);
  UseUnitsOf(geometry.m_pVias, units, findings);
  UseUnitsOf(geometry.m_pDrawings, units, findings);
  UseUnitsOf(geometry.m_pGenericParts, units, findings);
  UseUnitsOf(geometry.m_pPanels, units, findings);
}

std::string Number(double value) {
  CString text;
  text.Format("%g", value);
  return text.GetString();
}

void CheckIsKnown(const CString& word, ImportFile file, double readAs, Collector& findings) {
  const std::string_view unit = ComparedName(word.View());
  if (MillimetresIn(unit) || !findings.Trusts(file)) return;
  findings.Add(FindingCode::kUnknownUnit, [&] {
    const std::string what = unit.empty() ? "names no unit" : "has the unknown unit " + Quoted(unit);
    return Finding{.message = "the " + std::string(NameOf(file)) + " file " + what + "; a unit is read as " +
                              Number(readAs) + " mm",
                   .at = {findings.PlaceOf(file, &word)}};
  });
}

}  // namespace

void CheckUnitsAgree(const CheckedSet& set, const Board& /*board*/, Collector& findings) {
  const BoardModels& models = set.models;
  UnitsInUse units;
  if (models.components != nullptr) {
    const CString& word = models.components->m_sUnits;
    units.Use(word, "the Neutral file", findings.PlaceOf(ImportFile::kNeutral, &word));
  }
  if (models.geometry != nullptr) UseUnitsOf(*models.geometry, units, findings);
  if (models.traces != nullptr) {
    const CString& word = models.traces->m_sUnits;
    units.Use(word, "the Traces file", findings.PlaceOf(ImportFile::kTraces, &word));
  }
  units.Report(findings);
}

void CheckUnitsAreKnown(const CheckedSet& set, const Board& board, Collector& findings) {
  const BoardModels& models = set.models;
  if (models.components != nullptr)
    CheckIsKnown(models.components->m_sUnits, ImportFile::kNeutral, board.units.neutral, findings);
  if (models.traces != nullptr)
    CheckIsKnown(models.traces->m_sUnits, ImportFile::kTraces, board.units.traces, findings);
}

}  // namespace kestrin
