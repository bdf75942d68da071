#include "kestrin/board/findings/checks.h"
#include "kestrin/session/import_session.h"

namespace kestrin {
namespace {

constexpr Check kChecks[] = {
    &CheckFiles,  // first, as it says which files not to trust
    &CheckComponentsOfPins,
    &CheckPinsOfNets,
    &CheckPinsInTwoNets,
    &CheckNetsOfTraces,
    &CheckNetsOfNeutral,
    &CheckNamesOfNets,
    &CheckNamesOfComponents,
    &CheckGeometriesOfComponents,
    &CheckPlacesOfComponents,
    &CheckPadstacks,
    &CheckNamesOfGeometries,
    &CheckNamesOfLayers,
    &CheckLayersInUse,
    &CheckVias,
    &CheckNetsOfFills,
    &CheckAreas,
    &CheckReading,
    &CheckUnitsAgree,
    &CheckUnitsAreKnown,
};

}  // namespace

CheckedSet CheckedSetOf(const CPC_KESTRIN_GET& session) {
  CheckedSet set;
  set.models = ModelsOf(session);
  set.report = &session.GetReport();
  for (std::size_t i = 0; i < kImportFileCount; ++i) {
    set.lines[i] = session.GetSourceLines(static_cast<ImportFile>(i));
  }
  return set;
}

Findings FindFaults(const CheckedSet& set, const Board& board) {
  Collector findings(set);
  for (const Check check : kChecks) check(set, board, findings);
  return findings.Finish();
}

}  // namespace kestrin
