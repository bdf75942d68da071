#include "kestrin/board/read_board.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "kestrin/base/side_by_side.h"
#include "kestrin/board/copper.h"
#include "kestrin/board/fit.h"
#include "kestrin/board/footprints.h"
#include "kestrin/board/for_each_record.h"
#include "kestrin/board/layers.h"
#include "kestrin/board/net_names.h"
#include "kestrin/board/net_pins.h"
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

/// Whether the models are so large that reading them is worth a second thread. Starting one takes about as
/// long as reading a hundred records.
bool IsLarge(const BoardModels& models) {
  constexpr std::size_t kManyRecords = 2'000;
  const std::size_t records = SizeOf(models.components, &CMComps::m_pInfos) +
                              SizeOf(models.nets, &CMNetList::m_pNets) +
                              SizeOf(models.traces, &CMTraces::m_pNetArray);
  return records >= kManyRecords;
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

/// What the parts of nets are read from.
struct NetSources {
  const BoardModels& models;
  const NetsOfRecords& nets;
  const Footprints& footprints;
  const CopperSurvey& survey;
  const NameIndex& viaPadstacks;
};

/// Reads pins, copper and areas of all nets. The copper takes longer than the rest, so the thread that reads
/// the rest gets a quarter of it.
void ReadNets(const NetSources& from, bool isWorthThread, Board& board) {
  const std::span<Net> all(board.nets);
  const std::span<Net> most = all.first(all.size() - all.size() / 4);
  const std::span<Net> others = all.subspan(most.size());
  const CopperReader copper(from.models.traces, from.viaPadstacks, board);
  CopperLists ofMost(from.survey, 1.0);
  CopperLists ofOthers(from.survey, 0.25);
  RunSideBySide(
      isWorthThread, [&] { copper.Read(most, ofMost); },
      [&] {
        ReadNetPins(from.models.nets, from.nets.netRecords, from.footprints, board);
        ReadAreas(from.models.traces, from.nets.fills, board);
        copper.Read(others, ofOthers);
      });
  AddCopper(std::move(ofMost), most, board);
  AddCopper(std::move(ofOthers), others, board);
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
  const NameIndex viaPadstacks = ReadViaPadstacks(models, board);
  const bool isLarge = IsLarge(models);
  NetsOfRecords nets;
  CopperSurvey survey;
  RunSideBySide(
      isLarge, [&] { nets = ReadNetNames(models, board); },
      [&] {
        ReadComponents(models.components, PinRecords(models), footprints, board);
        survey = SurveyCopper(models.traces);
      });
  board.reading.widthStep = WidthStepOf(survey, board.units.traces, options.widthStep);
  ReadNets({models, nets, footprints, survey, viaPadstacks}, isLarge, board);
  board.reading = FitPlacement(board, footprints, options, isLarge);
  PlaceComponents(footprints, board);
  return board;
}

}  // namespace kestrin
