#include "kestrin/board/read_board.h"

#include <algorithm>
#include <cmath>

#include "kestrin/board/copper.h"
#include "kestrin/board/fit.h"
#include "kestrin/board/footprints.h"
#include "kestrin/board/for_each_record.h"
#include "kestrin/board/layers.h"
#include "kestrin/board/nets.h"
#include "kestrin/board/placement.h"
#include "kestrin/board/polygons.h"
#include "kestrin/board/units.h"
#include "kestrin/board/widths.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/neutral/net_model.h"
#include "kestrin/session/import_session.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// Convention: the placement outline, inside which components must be, is the outline of the board.
Polygon OutlineOf(const CMGeomBoard& board, double unit) {
  Polygon outline = PolygonOf(*board.m_pPlacementOutline, unit);
  return outline.empty() ? PolygonOf(*board.m_pRoutingOutline, unit) : outline;
}

std::optional<double> WidthStepOf(const CopperSurvey& survey, double unit, std::optional<double> asked) {
  const bool isUsable = asked && *asked > 0.0 && std::isfinite(*asked);
  return isUsable ? asked : FitWidthStep(survey, unit);
}

/// The number of records that the pins of components come from.
std::size_t PinRecords(const BoardModels& models) {
  std::size_t count = 0;
  const auto add = [&](std::int64_t more) { count += static_cast<std::size_t>(more); };
  if (models.components != nullptr) add(models.components->m_pInfos->GetSize());
  if (models.nets != nullptr) {
    ForEachRecord(models.nets->m_pNets, [&](const CMNetInfo& net, Index) { add(net.m_pPins->GetSize()); });
  }
  if (models.geometry != nullptr) {
    ForEachRecord(models.geometry->m_pComponents,
                  [&](const CMGeomComponent& component, Index) { add(component.m_pPinDefs->GetSize()); });
  }
  return count;
}

/// An estimate of the number of nets. Net headers mostly repeat the names of the nets.
std::size_t NetNames(const BoardModels& models) {
  const std::int64_t nets = models.nets == nullptr ? 0 : models.nets->m_pNets->GetSize();
  const std::int64_t headers = models.traces == nullptr ? 0 : models.traces->m_pNetArray->GetSize();
  return static_cast<std::size_t>(std::max(nets, headers));
}

}  // namespace

BoardModels ModelsOf(const CPC_KESTRIN_GET& session) {
  return {.tech = session.GetTech(),
          .components = session.GetComps(),
          .nets = session.GetNetList(),
          .geometry = session.GetGeom(),
          .traces = session.GetTraces()};
}

Board ReadBoard(const BoardModels& models, const BoardOptions& options) {
  Board board;
  board.units = ReadUnits(models);
  ReadLayers(models, board);
  if (models.geometry != nullptr) {
    board.name = ComparedName(models.geometry->m_pBoard->m_sName.View());
    board.outline = OutlineOf(*models.geometry->m_pBoard, board.units.geometry);
  }
  const Footprints footprints(models.geometry, board);
  ReadComponents(models.components, PinRecords(models), footprints, board);
  NetTable nets(NetNames(models), board);
  ReadNets(models.nets, footprints, nets, board);
  const NameIndex viaPadstacks = ReadViaPadstacks(models, board);
  if (models.traces != nullptr) {
    const CopperSurvey survey = SurveyCopper(*models.traces);
    board.reading.widthStep = WidthStepOf(survey, board.units.traces, options.widthStep);
    ReadCopper(*models.traces, survey, viaPadstacks, nets, board);
    ReadAreas(*models.traces, nets, board);
  }
  board.reading = FitPlacement(board, footprints, options);
  PlaceComponents(footprints, board);
  return board;
}

}  // namespace kestrin
