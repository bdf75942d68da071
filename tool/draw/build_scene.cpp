#include "tool/draw/build_scene.h"

#include <algorithm>
#include <cmath>
#include <string_view>

#include "kestrin/board/for_each_record.h"
#include "tool/draw/drawings.h"

namespace kestrin::tool::draw {
namespace {

/// Keep-outs of a geometry, by what must keep out.
struct KeepoutKind {
  std::string_view id;
  std::string_view label;
};
constexpr KeepoutKind kPlacementKeepouts{"keepouts-placement", "Keep-outs for components"};
constexpr KeepoutKind kRoutingKeepouts{"keepouts-routing", "Keep-outs for routing"};
constexpr KeepoutKind kTrackKeepouts{"keepouts-tracks", "Keep-outs for tracks"};
constexpr KeepoutKind kViaKeepouts{"keepouts-vias", "Keep-outs for vias"};

class SceneBuilder {
 public:
  SceneBuilder(const Board& board, const CMGeom* geometry, const SceneOptions& options)
      : board_(board), geometry_(geometry), layers_(board, options.window, options.brightNets) {
    scene_.board = &board;
  }

  Scene Build() {
    AddBoard();
    for (Index i = 0; i < board_.nets.size(); ++i) AddNet(board_.nets[i], i);
    for (Index i = 0; i < board_.components.size(); ++i) AddComponent(board_.components[i], i);
    scene_.bounds = layers_.Bounds();
    scene_.layers = layers_.Take();
    return std::move(scene_);
  }

 private:
  void AddBoard();
  void AddNet(const Net& net, Index index);
  void AddArea(const Area& area, Index net);
  void AddVia(const Via& via, Index net);
  void AddComponent(const Component& component, Index index);
  void AddPin(const Component& component, Owner owner, const Pin& pin);
  void AddOutlines(const CMGeomComponent& geometry, const Placement& placement, const Owner& owner);
  void AddReference(const Component& component, const Owner& owner, const Box& body);
  void AddKeepouts(const RecordArray<CMGeomKeepout>& keepouts, KeepoutKind kind, const Placement& placement,
                   const Owner& owner);
  template <class Geometry>
  void AddDrills(const Geometry& geometry, const Placement& placement, const Owner& owner);
  SceneLayer& Drills(const std::vector<Index>& layers) {
    return layers_.OfSpan(Role::kDrills, "drills", "Drills", layers);
  }

  const Board& board_;
  const CMGeom* geometry_;
  Scene scene_;
  SceneLayers layers_;
  Drawings drawings_{board_, layers_, scene_.points};
  /// Of each via padstack, where its pads and its holes are drawn; null if not yet known.
  struct ViaLayers {
    SceneLayer* pads = nullptr;
    SceneLayer* holes = nullptr;
  };
  std::vector<ViaLayers> viaLayers_ = std::vector<ViaLayers>(board_.viaPadstacks.size());
};

std::string_view SideName(Side side) { return side == Side::kTop ? "top" : "bottom"; }

void SceneBuilder::AddBoard() {
  layers_.Add(layers_.OfRole(Role::kBoard, "board", "Board"), {false, Part::kArea, Form::kFill, 0.0}, {},
              board_.outline);
  if (geometry_ == nullptr) return;
  const CMGeomBoard& geometry = *geometry_->m_pBoard;
  Placement placement;
  placement.transform.unit = board_.units.OfGeometry(geometry.m_sUnits.View());
  drawings_.Draw(*geometry.m_pDrawObjs, placement, {}, Part::kDrawing);
  ForEachRecord(geometry.m_pTexts,
                [&](const CMGeomText& text, Index) { drawings_.Draw(text, placement, {}); });
  AddDrills(geometry, placement, {});
  AddKeepouts(*geometry.m_pPlacementKeepouts, kPlacementKeepouts, placement, {});
  AddKeepouts(*geometry.m_pRoutingKeepouts, kRoutingKeepouts, placement, {});
}

void SceneBuilder::AddNet(const Net& net, Index index) {
  const Owner owner{index, kNone, kNone};
  for (const Area& area : net.areas) AddArea(area, index);
  for (const Track& track : board_.TracksOf(net)) {
    layers_.Add(layers_.OfNumber(track.layer), {false, Part::kTrack, Form::kLine, track.width.value_or(0.0)},
                owner, board_.PointsOf(track));
  }
  for (const Via& via : board_.ViasOf(net)) AddVia(via, index);
  for (const OpenConnection& open : net.open) {
    const std::span<Point> ends = scene_.points.Make(2);
    ends[0] = open.from;
    ends[1] = open.to;
    layers_.Add(layers_.OfRole(Role::kOpen, "open", "Open connections"),
                {false, Part::kTrack, Form::kLine, 0.0}, owner, ends);
  }
}

void SceneBuilder::AddArea(const Area& area, Index net) {
  layers_.AddWithHoles(layers_.OfName(area.layer), {false, Part::kArea, Form::kFill, 0.0},
                       {net, kNone, kNone}, area.outline, area.holes);
}

void SceneBuilder::AddVia(const Via& via, Index net) {
  const ViaPadstack& padstack = board_.viaPadstacks[via.padstack];
  const Owner owner{net, kNone, kNone};
  ViaLayers& layers = viaLayers_[via.padstack];
  if (layers.pads == nullptr) layers.pads = &layers_.OfSpan(Role::kVias, "vias", "Vias", padstack.layers);
  if (!padstack.sourceIndex || geometry_ == nullptr) {
    return drawings_.DrawDot(via.position, 0.0, owner, *layers.pads, Part::kPad);
  }
  const CMGeomVia& geometry = *(*geometry_->m_pVias)[*padstack.sourceIndex];
  Placement placement;
  placement.transform.unit = padstack.unit;
  placement.transform.origin = via.position;
  drawings_.DrawOnce(*geometry.m_pDrawObjs, placement, owner, *layers.pads);
  if (!(geometry.m_dDrillSize > 0.0)) return;
  if (layers.holes == nullptr) layers.holes = &Drills(padstack.layers);
  drawings_.DrawDot(via.position, geometry.m_dDrillSize * padstack.unit, owner, *layers.holes, Part::kPad);
}

void SceneBuilder::AddComponent(const Component& component, Index index) {
  const Owner owner{kNone, index, kNone};
  if (!drawings_.HasRoom()) {
    ++scene_.componentsLeftOut;
    return;
  }
  if (geometry_ != nullptr && component.geometryIndex) {
    const CMGeomComponent& geometry = *(*geometry_->m_pComponents)[*component.geometryIndex];
    const Placement placement{component.transform, component.side};
    drawings_.Draw(*geometry.m_pDrawObjs, placement, owner, Part::kDrawing);
    ForEachRecord(geometry.m_pTexts,
                  [&](const CMGeomText& text, Index) { drawings_.Draw(text, placement, owner); });
    AddOutlines(geometry, placement, owner);
    AddDrills(geometry, placement, owner);
    AddKeepouts(*geometry.m_pRoutingKeepouts, kRoutingKeepouts, placement, owner);
    AddKeepouts(*geometry.m_pTraceKeepouts, kTrackKeepouts, placement, owner);
    AddKeepouts(*geometry.m_pViaKeepouts, kViaKeepouts, placement, owner);
  }
  Box box;
  for (Index pin = 0; pin < component.pins.count; ++pin) {
    const Index pinIndex = component.pins.first + pin;
    AddPin(component, {kNone, index, pinIndex}, board_.pins[pinIndex]);
    box.Add(board_.pins[pinIndex].position);
  }
  if (box.IsEmpty()) box.Add(component.position);
  AddReference(component, owner, box);
}

/// The layers that a pin's hole pierces: all, but for a blind one those that its drawing names.
std::vector<Index> PiercedBy(const CMGeomPin& geometry, Side side, const Board& board) {
  constexpr int kBlind = 3;
  std::vector<Index> layers;
  if (geometry.m_nTerminalType != kBlind) return layers;
  ForEachRecord(geometry.m_pDrawObjs, [&](const CMGeomDrawObj& object, Index) {
    const Layer* layer = board.FindLayer(board.LayerOn(side, LayerOf(object)));
    if (layer != nullptr) layers.push_back(static_cast<Index>(layer - board.layers.data()));
  });
  std::sort(layers.begin(), layers.end());
  layers.erase(std::unique(layers.begin(), layers.end()), layers.end());
  return layers;
}

void SceneBuilder::AddPin(const Component& component, Owner owner, const Pin& pin) {
  if (pin.net) owner.net = *pin.net;
  if (geometry_ == nullptr || !pin.padstack) return;
  const Padstack& padstack = board_.padstacks[*pin.padstack];
  if (!padstack.sourceIndex) return;
  const CMGeomPin& geometry = *(*geometry_->m_pPins)[*padstack.sourceIndex];
  Placement placement{component.transform, component.side};
  placement.transform.unit = padstack.unit;
  placement.transform.origin = pin.position;
  drawings_.Draw(*geometry.m_pDrawObjs, placement, owner, Part::kPad);
  if (geometry.m_dDrillSize > 0.0) {
    drawings_.DrawDot(pin.position, geometry.m_dDrillSize * padstack.unit, owner,
                      Drills(PiercedBy(geometry, component.side, board_)), Part::kPad);
  }
}

void SceneBuilder::AddOutlines(const CMGeomComponent& geometry, const Placement& placement,
                               const Owner& owner) {
  const Brush contour{false, Part::kDrawing, Form::kContour, 0.0};
  const std::string side(SideName(placement.side));
  if (geometry.m_pBodyOutline->GetSize() > 0) {
    drawings_.Draw(*geometry.m_pBodyOutline, placement, owner,
                   layers_.OfRole(Role::kBodies, "bodies-" + side, "Components, " + side), contour);
  }
  ForEachRecord(geometry.m_pPlacementOutlines, [&](const CMGeomPlacementOutline& outline, Index) {
    drawings_.Draw(*outline.m_pCoords, placement, owner,
                   layers_.OfRole(Role::kPlacements, "placement-" + side, "Placement, " + side), contour);
  });
}

/// Writes the reference over the pins of a component, as large as they leave room for.
void SceneBuilder::AddReference(const Component& component, const Owner& owner, const Box& pins) {
  constexpr double kLeast = 0.4;
  constexpr double kMost = 1.5;
  const bool isUpright = pins.Height() > pins.Width();
  const double room = std::max(pins.Width(), pins.Height());
  SceneText text;
  text.text = component.name;
  text.position = {(pins.x0 + pins.x1) / 2.0, (pins.y0 + pins.y1) / 2.0};
  text.height = std::clamp(
      0.7 * room / (kLetterWidth * static_cast<double>(std::max<std::size_t>(1, text.text.size()))), kLeast,
      kMost);
  const double mirror = component.side == Side::kBottom ? -1.0 : 1.0;
  text.cosX = isUpright ? 0.0 : mirror;
  text.sinX = isUpright ? 1.0 : 0.0;
  text.cosY = isUpright ? -mirror : 0.0;
  text.sinY = isUpright ? 0.0 : 1.0;
  text.column = 1;
  text.row = 1;
  const std::string side(SideName(component.side));
  layers_.Add(layers_.OfRole(Role::kBodies, "bodies-" + side, "Components, " + side), std::move(text), owner);
}

void SceneBuilder::AddKeepouts(const RecordArray<CMGeomKeepout>& keepouts, KeepoutKind kind,
                               const Placement& placement, const Owner& owner) {
  ForEachRecord(&keepouts, [&](const CMGeomKeepout& keepout, Index) {
    drawings_.Draw(*keepout.m_pCoords, placement, owner, layers_.OfRole(Role::kKeepouts, kind.id, kind.label),
                   {false, Part::kArea, Form::kFill, 0.0});
  });
}

template <class Geometry>
void SceneBuilder::AddDrills(const Geometry& geometry, const Placement& placement, const Owner& owner) {
  const auto add = [&](const CMGeomDrill& drill, SceneLayer& layer) {
    drawings_.DrawDot(placement.transform.Apply({drill.m_dX, drill.m_dY}),
                      drill.m_dSize * placement.transform.unit, owner, layer, Part::kPad);
  };
  ForEachRecord(geometry.m_pDrills, [&](const CMGeomDrill& drill, Index) { add(drill, Drills({})); });
  ForEachRecord(geometry.m_pUnplatedDrills, [&](const CMGeomDrill& drill, Index) {
    add(drill, layers_.OfRole(Role::kDrills, "drills-unplated", "Drills, unplated"));
  });
}

}  // namespace

Scene BuildScene(const Board& board, const CMGeom* geometry, const SceneOptions& options) {
  return SceneBuilder(board, geometry, options).Build();
}

}  // namespace kestrin::tool::draw
