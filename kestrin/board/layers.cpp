#include "kestrin/board/layers.h"

#include <algorithm>
#include <charconv>

#include "kestrin/board/board_words.h"
#include "kestrin/board/for_each_record.h"
#include "kestrin/board/read_board.h"
#include "kestrin/geometry/geometry_model.h"
#include "kestrin/tech/tech_model.h"

namespace kestrin {
namespace {

/// The logical layers that exist on both sides, as "…_1" on the top and "…_2" on the bottom.
constexpr std::string_view kSideLayers[] = {
    "SILKSCREEN", "BREAKOUT", "DRAWING", "GLUE_MASK", "PAD", "PASTE_MASK", "PLACE", "SOLDER_MASK", "THERMAL",
};

constexpr std::string_view kSignal = "SIGNAL_";

/// A limit because a Geometry file may state any number of layers. No real board has as many.
constexpr int kMostLayersWithoutTech = 1000;

void ReadPhysicalLayers(const CMTech& tech, std::vector<Layer>& layers) {
  ForEachRecord(tech.m_pStackupArray, [&](const CMTechStackUpOrder& record, Index index) {
    Layer& layer = layers.emplace_back();
    layer.number = record.m_nPhysicalLayerNumber;
    layer.name = ComparedName(record.m_sPhysicalLayerName.View());
    for (const CString& name : record.m_arrLogicalLayerNames)
      layer.names.emplace_back(ComparedName(name.View()));
    layer.sourceIndex = index;
  });
  std::stable_sort(layers.begin(), layers.end(),
                   [](const Layer& a, const Layer& b) { return a.number < b.number; });
}

/// Convention: without a Tech file the routing layers are numbered from the top, as their names suggest.
void NumberRoutingLayers(int count, Board& board) {
  for (int number = 1; number <= std::min(count, kMostLayersWithoutTech); ++number) {
    Layer& layer = board.layers.emplace_back();
    layer.number = number;
    layer.name = std::string(kSignal) + std::to_string(number);
    board.layersByName.emplace(layer.name, board.layers.size() - 1);
  }
}

/// Convention: the names of a side belong to its outermost layer, unless the Tech file says otherwise.
void NameSides(Board& board) {
  if (board.layers.empty()) return;
  for (const std::string_view name : kSideLayers) {
    board.layersByName.emplace(std::string(name) + "_1", 0);
    board.layersByName.emplace(std::string(name) + "_2", board.layers.size() - 1);
  }
}

std::optional<int> SignalNumber(std::string_view layer) {
  if (!layer.starts_with(kSignal)) return std::nullopt;
  layer.remove_prefix(kSignal.size());
  int number = 0;
  const auto read = std::from_chars(layer.data(), layer.data() + layer.size(), number);
  if (read.ec != std::errc() || read.ptr != layer.data() + layer.size() || number < 0) return std::nullopt;
  return number;
}

void FindOuterSignalLayers(Board& board) {
  std::optional<int> first;
  std::optional<int> last;
  for (const auto& [name, layer] : board.layersByName) {
    const std::optional<int> number = SignalNumber(name);
    if (!number) continue;
    if (!first || *number < *first) {
      first = number;
      board.firstSignalLayer = name;
    }
    if (!last || *number > *last) {
      last = number;
      board.lastSignalLayer = name;
    }
  }
}

/// "PAD_2" for "PAD_1" and the reverse; empty if the layer is not on one side only.
std::string OtherSide(std::string_view layer) {
  for (const std::string_view name : kSideLayers) {
    if (layer.size() != name.size() + 2 || !layer.starts_with(name)) continue;
    if (layer.ends_with("_1")) return std::string(name) + "_2";
    if (layer.ends_with("_2")) return std::string(name) + "_1";
  }
  return {};
}

}  // namespace

void ForEachLayerWord(const FormatWordVisitor& visit) {
  visit({.text = kSignal});
  for (const std::string_view name : kSideLayers) visit({.text = name});
}

void ReadLayers(const BoardModels& models, Board& board) {
  if (models.tech != nullptr) ReadPhysicalLayers(*models.tech, board.layers);
  for (Index i = 0; i < board.layers.size(); ++i) {
    for (const std::string& name : board.layers[i].names) board.layersByName.emplace(name, i);
  }
  if (board.layers.empty() && models.geometry != nullptr) {
    NumberRoutingLayers(models.geometry->m_pBoard->m_nRoutingLayers, board);
  }
  NameSides(board);
  FindOuterSignalLayers(board);
}

bool IsSideLayer(std::string_view layer) { return !OtherSide(layer).empty(); }

const Layer* Board::FindLayer(int number) const {
  const auto found = std::lower_bound(layers.begin(), layers.end(), number,
                                      [](const Layer& layer, int wanted) { return layer.number < wanted; });
  return found == layers.end() || found->number != number ? nullptr : &*found;
}

const Layer* Board::FindLayer(std::string_view name) const {
  const auto found = layersByName.find(ComparedName(name));
  return found == layersByName.end() ? nullptr : &layers[found->second];
}

std::string Board::LayerOn(Side side, std::string_view layer) const {
  const std::string_view name = ComparedName(layer);
  if (side == Side::kTop || name.empty()) return std::string(name);
  if (name == firstSignalLayer) return lastSignalLayer;
  if (name == lastSignalLayer) return firstSignalLayer;
  const std::string other = OtherSide(name);
  return other.empty() ? std::string(name) : other;
}

}  // namespace kestrin
