// What several kinds of geometry have. A record's place is wherever the open geometry has the list for it.

#include <memory>
#include <type_traits>
#include <utility>

#include "kestrin/geom/attribute_handlers.h"
#include "kestrin/platform/numbers.h"

namespace kestrin::attribute {
namespace {

std::unique_ptr<CMGeomDrill> ReadDrill(ReaderState& state) {
  auto drill = std::make_unique<CMGeomDrill>();
  drill->m_dSize = ToDouble(state.values[2]);
  const BracketedPoint point = state.TakePoint(3);
  drill->m_dX = point.x;
  drill->m_dY = point.y;
  return drill;
}

std::unique_ptr<CMGeomKeepout> ReadKeepout(ReaderState& state) {
  auto keepout = std::make_unique<CMGeomKeepout>();
  keepout->m_sName = state.values[2];
  Append(*keepout->m_pCoords, state.TakePoints(3, kKeepoutScan));
  return keepout;
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
      auto outline = std::make_unique<CMGeomPlacementOutline>();
      outline->m_sName = state.values[2];
      Append(*outline->m_pCoords, points);
      record.m_pPlacementOutlines->Append(std::move(outline));
    } else if constexpr (std::is_same_v<RECORD, CMGeomGenericPart>) {
      Append(*record.m_pPlacementOutline->m_pCoords, points);
    }
  });
  return LineOutcome::Imported();
}

LineOutcome Drill(ReaderState& state) {
  auto drill = ReadDrill(state);
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_pDrills; }) record.m_pDrills->Append(std::move(drill));
  });
  return LineOutcome::Imported();
}

LineOutcome UnplatedDrill(ReaderState& state) {
  auto drill = ReadDrill(state);
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_pUnplatedDrills; }) record.m_pUnplatedDrills->Append(std::move(drill));
  });
  return LineOutcome::Imported();
}

LineOutcome RoutingKeepout(ReaderState& state) {
  auto keepout = ReadKeepout(state);
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_pRoutingKeepouts; }) {
      record.m_pRoutingKeepouts->Append(std::move(keepout));
    }
  });
  return LineOutcome::Imported();
}

LineOutcome TraceKeepout(ReaderState& state) {
  auto keepout = ReadKeepout(state);
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_pTraceKeepouts; }) record.m_pTraceKeepouts->Append(std::move(keepout));
  });
  return LineOutcome::Imported();
}

LineOutcome ViaKeepout(ReaderState& state) {
  auto keepout = ReadKeepout(state);
  state.geometry.VisitOpen([&](auto& record) {
    if constexpr (requires { record.m_pViaKeepouts; }) record.m_pViaKeepouts->Append(std::move(keepout));
  });
  return LineOutcome::Imported();
}

}  // namespace kestrin::attribute
