#include <map>
#include <set>
#include <string>

#include "kestrin/board/drawing_layer.h"
#include "kestrin/board/findings/checks.h"
#include "kestrin/board/layers.h"
#include "kestrin/board/polylines.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/tech/tech_model.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// Gathers the layers that records use, and which of them the Tech file lacks.
class LayersInUse {
 public:
  LayersInUse(const Board& board, const Collector& findings) : findings_(findings) {
    for (const Layer& layer : board.layers) {
      numbers_.insert(layer.number);
      names_.insert(layer.name);
      names_.insert(layer.names.begin(), layer.names.end());
    }
  }

  void UseNumber(int number, const CMTracesSEG& point) {
    if (number == 0 || number == lastNumber_) return;
    lastNumber_ = number;
    if (!Use(std::to_string(number), numbers_.contains(number))) return;
    missing_.push_back({"layer " + std::to_string(number), findings_.PlaceOf(ImportFile::kTraces, &point)});
  }

  void UseName(std::string_view layer, ImportFile file, const void* record) {
    if (layer.empty()) return;
    std::string name(layer);
    const std::string quoted = Quoted(name);
    if (!Use(quoted, names_.contains(name) || IsSideLayer(layer))) return;
    missing_.push_back({"layer " + quoted, findings_.PlaceOf(file, record)});
  }

  void Report(Collector& findings) {
    NameMatches matches(FindingCode::kUnknownLayer, "layers in use", "a layer of the Tech file");
    for (const std::string& layer : present_) matches.Match(layer);
    for (const Missing& missing : missing_) {
      matches.Miss(missing.layer, [&] {
        return Finding{.message = "the Tech file has no " + missing.layer, .at = {missing.place}};
      });
    }
    std::move(matches).Finish(findings);
  }

 private:
  struct Missing {
    std::string layer;
    FindingPlace place;  // of the first use
  };

  /// Whether this is the first use of a layer that is missing.
  bool Use(const std::string& layer, bool isThere) {
    if (isThere) present_.insert(layer);
    return !isThere && absent_.insert(layer).second;
  }

  const Collector& findings_;
  std::set<int> numbers_;
  std::set<std::string, std::less<>> names_;
  std::set<std::string> present_;
  std::set<std::string> absent_;
  std::vector<Missing> missing_;
  int lastNumber_ = 0;
};

void UseLayersOf(const CMTraces& traces, LayersInUse& layers) {
  ForEachRecord(traces.m_pNetArray, [&](const CMTracesNET& header, Index) {
    ForEachPolyline(header, [&](const auto& polyline, WireKind, Index) {
      ForEachRecord(polyline.m_pSegArray,
                    [&](const CMTracesSEG& point, Index) { layers.UseNumber(point.m_nValue3, point); });
    });
  });
  ForEachRecord(traces.m_pNetArray, [&](const CMTracesNET& header, Index) {
    ForEachRecord(header.m_pIncArray, [&](const CMTracesINCANT& open, Index) {
      ForEachRecord(open.m_pSegArray,
                    [&](const CMTracesSEG& point, Index) { layers.UseNumber(point.m_nValue3, point); });
    });
  });
  ForEachRecord(traces.m_pFilArray, [&](const CMTracesFIL& fill, Index) {
    layers.UseName(ComparedName(fill.m_sName2.View()), ImportFile::kTraces, &fill);
  });
}

template <class Geometry>
void UseLayersOf(const Geometry& geometry, LayersInUse& layers) {
  ForEachRecord(geometry.m_pDrawObjs, [&](const CMGeomDrawObj& object, Index) {
    layers.UseName(LayerOf(object), ImportFile::kGeometry, &object);
  });
  ForEachRecord(geometry.m_pTexts, [&](const CMGeomText& text, Index) {
    layers.UseName(ComparedName(text.m_sLayer.View()), ImportFile::kGeometry, &text);
  });
}

/// The layers of keep-outs or placement outlines, which are their names.
template <class List>
void UseNamesOf(const List& areas, LayersInUse& layers) {
  ForEachRecord(areas, [&](const auto& area, Index) {
    layers.UseName(ComparedName(area.m_sName.View()), ImportFile::kGeometry, &area);
  });
}

void UseLayersOf(const CMTech& tech, LayersInUse& layers) {
  ForEachRecord(tech.m_pViaArray, [&](const CMTechVia& rule, Index) {
    layers.UseName(ComparedName(rule.m_sArg2.View()), ImportFile::kTech, &rule);
    layers.UseName(ComparedName(rule.m_sArgLast.View()), ImportFile::kTech, &rule);
  });
}

template <class List>
void UseLayersOfAll(const List& geometries, LayersInUse& layers) {
  ForEachRecord(geometries, [&](const auto& geometry, Index) { UseLayersOf(geometry, layers); });
}

}  // namespace

void CheckNamesOfLayers(const CheckedSet& set, const Board& /*board*/, Collector& findings) {
  if (set.models.tech == nullptr) return;
  std::map<std::string, const CMTechStackUpOrder*> seen;
  ForEachRecord(set.models.tech->m_pStackupArray, [&](const CMTechStackUpOrder& record, Index) {
    const std::string number = std::to_string(record.m_nPhysicalLayerNumber);
    const std::string name = Quoted(ComparedName(record.m_sPhysicalLayerName.View()));
    const CMTechStackUpOrder* const sameNumber = seen.emplace(number, &record).first->second;
    const CMTechStackUpOrder* const sameName = seen.emplace(name, &record).first->second;
    const CMTechStackUpOrder* const first = sameNumber != &record ? sameNumber : sameName;
    if (first == &record) return;
    findings.Add(FindingCode::kDuplicateLayer, [&] {
      return Finding{
          .message = "physical layer " + (first == sameNumber ? number : name) + " is there more than once",
          .at = {findings.PlaceOf(ImportFile::kTech, &record), findings.PlaceOf(ImportFile::kTech, first)}};
    });
  });
}

void CheckLayersInUse(const CheckedSet& set, const Board& board, Collector& findings) {
  if (set.models.tech == nullptr || set.models.tech->m_pStackupArray->IsEmpty()) return;
  LayersInUse layers(board, findings);
  UseLayersOf(*set.models.tech, layers);
  if (set.models.traces != nullptr) UseLayersOf(*set.models.traces, layers);
  if (const CMGeom* geometry = set.models.geometry) {
    UseLayersOf(*geometry->m_pBoard, layers);
    UseNamesOf(geometry->m_pBoard->m_pPlacementKeepouts, layers);
    UseNamesOf(geometry->m_pBoard->m_pRoutingKeepouts, layers);
    ForEachRecord(geometry->m_pComponents, [&](const CMGeomComponent& component, Index) {
      UseNamesOf(component.m_pPlacementOutlines, layers);
      UseNamesOf(component.m_pRoutingKeepouts, layers);
      UseNamesOf(component.m_pTraceKeepouts, layers);
      UseNamesOf(component.m_pViaKeepouts, layers);
    });
    UseLayersOfAll(geometry->m_pComponents, layers);
    UseLayersOfAll(geometry->m_pPins, layers);
    UseLayersOfAll(geometry->m_pVias, layers);
    UseLayersOfAll(geometry->m_pDrawings, layers);
    UseLayersOfAll(geometry->m_pGenericParts, layers);
    UseLayersOfAll(geometry->m_pPanels, layers);
  }
  layers.Report(findings);
}

}  // namespace kestrin
