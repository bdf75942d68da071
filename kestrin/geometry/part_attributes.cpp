// What several kinds of geometry have. A record's place is wherever the open geometry has the list for it.

#include <memory>
#include <type_traits>
#include <utility>

#include "kestrin/base/numbers.h"
#include "kestrin/geometry/append_numbers.h"
#include "kestrin/geometry/attribute_handlers.h"
#include "kestrin/records/append.h"

namespace kestrin::attribute {
namespace {

/// Adds a drill to the list that listOf finds in the open geometry; where it gives null the drill is lost.
template <class LISTOF>
LineOutcome AddDrill(ReaderState& state, LISTOF listOf) {
  const BracketedPoint point = state.TakePoint(3);
  state.geometry.VisitOpen([&](auto& record) {
    RecordArray<CMGeomDrill>* list = listOf(record);
    if (list == nullptr) return;
    auto drill = state.records.Make<CMGeomDrill>();
    drill->m_dSize = ToDouble(state.values[2]);
    drill->m_dX = point.x;
    drill->m_dY = point.y;
    Append(*list, std::move(drill));
  });
  return LineOutcome::Imported();
}

/// The same for a keep-out.
template <class LISTOF>
LineOutcome AddKeepout(ReaderState& state, LISTOF listOf) {
  const auto& points = state.TakePoints(3, kKeepoutScan);
  state.geometry.VisitOpen([&](auto& record) {
    RecordArray<CMGeomKeepout>* list = listOf(record);
    if (list == nullptr) return;
    auto keepout = state.records.Make<CMGeomKeepout>();
    keepout->m_sName = state.values[2];
    Append(*keepout->m_pCoords, points);
    Append(*list, std::move(keepout));
  });
  return LineOutcome::Imported();
}

}  // namespace

LineOutcome BodyOutline(ReaderState& state) {
  const auto& points = state.TakePoints(2, kOutlineScan);
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_pBodyOutline; }) Append(*record.m_pBodyOutline, points);
  });
  return LineOutcome::Imported();
}

LineOutcome PlacementOutline(ReaderState& state) {
  const auto& points = state.TakePoints(3, kPlacementOutlineScan);
  state.geometry.VisitOpen([&]<class RECORD>(RECORD& record) {
    if constexpr (std::is_same_v<RECORD, CMGeomComponent>) {
      auto outline = state.records.Make<CMGeomPlacementOutline>();
      outline->m_sName = state.values[2];
      Append(*outline->m_pCoords, points);
      Append(*record.m_pPlacementOutlines, std::move(outline));
    } else if constexpr (std::is_same_v<RECORD, CMGeomGenericPart>) {
      Append(*record.m_pPlacementOutline->m_pCoords, points);
    }
  });
  return LineOutcome::Imported();
}

LineOutcome Drill(ReaderState& state) {
  return AddDrill(state, [](auto& record) -> RecordArray<CMGeomDrill>* {
    if constexpr (requires { record.m_pDrills; }) return record.m_pDrills;
    return nullptr;
  });
}

LineOutcome UnplatedDrill(ReaderState& state) {
  return AddDrill(state, [](auto& record) -> RecordArray<CMGeomDrill>* {
    if constexpr (requires { record.m_pUnplatedDrills; }) return record.m_pUnplatedDrills;
    return nullptr;
  });
}

LineOutcome RoutingKeepout(ReaderState& state) {
  return AddKeepout(state, [](auto& record) -> RecordArray<CMGeomKeepout>* {
    if constexpr (requires { record.m_pRoutingKeepouts; }) return record.m_pRoutingKeepouts;
    return nullptr;
  });
}

LineOutcome TraceKeepout(ReaderState& state) {
  return AddKeepout(state, [](auto& record) -> RecordArray<CMGeomKeepout>* {
    if constexpr (requires { record.m_pTraceKeepouts; }) return record.m_pTraceKeepouts;
    return nullptr;
  });
}

LineOutcome ViaKeepout(ReaderState& state) {
  return AddKeepout(state, [](auto& record) -> RecordArray<CMGeomKeepout>* {
    if constexpr (requires { record.m_pViaKeepouts; }) return record.m_pViaKeepouts;
    return nullptr;
  });
}

}  // namespace kestrin::attribute
