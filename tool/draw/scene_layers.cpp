#include "tool/draw/scene_layers.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace kestrin::tool::draw {
namespace {

/// Coordinates beyond a kilometre are errors, and would leave nothing to see of the rest.
constexpr double kFarthestDrawn = 1e6;

bool IsNear(double coordinate) { return std::abs(coordinate) <= kFarthestDrawn; }

bool CanBeDrawn(const Box& box) {
  return IsNear(box.x0) && IsNear(box.y0) && IsNear(box.x1) && IsNear(box.y1);
}

/// The layers of each side that hold no copper, from the innermost outwards.
constexpr std::array<std::string_view, 8> kDrawingLayers{
    "BREAKOUT", "THERMAL", "SOLDER_MASK", "PASTE_MASK", "GLUE_MASK", "DRAWING", "PLACE", "SILKSCREEN",
};

struct SideLayer {
  int order;
  bool isBottom;
};

std::optional<SideLayer> DrawingLayerOf(std::string_view name) {
  if (!name.ends_with("_1") && !name.ends_with("_2")) return std::nullopt;
  const auto found = std::find(kDrawingLayers.begin(), kDrawingLayers.end(), name.substr(0, name.size() - 2));
  if (found == kDrawingLayers.end()) return std::nullopt;
  return SideLayer{static_cast<int>(found - kDrawingLayers.begin()), name.back() == '2'};
}

/// The number of the layer SIGNAL_n on a board that lists no layers.
std::optional<int> NumberIn(std::string_view name) {
  constexpr std::string_view kSignal = "SIGNAL_";
  if (!name.starts_with(kSignal)) return std::nullopt;
  name.remove_prefix(kSignal.size());
  int number = 0;
  const auto read = std::from_chars(name.data(), name.data() + name.size(), number);
  if (read.ec != std::errc() || read.ptr != name.data() + name.size()) return std::nullopt;
  return number;
}

std::string IdOf(std::string_view label) {
  std::string id(label);
  for (char& c : id) {
    const bool isPlain = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') ||
                         c == '_' || c == '-' || c == '.';
    if (!isPlain) c = '_';
  }
  return id;
}

}  // namespace

bool IsDrawingLayer(std::string_view name) { return DrawingLayerOf(name).has_value(); }

SceneLayers::SceneLayers(const Board& board, std::optional<Box> window, std::vector<bool> brightNets)
    : board_(board), window_(window), brightNets_(std::move(brightNets)) {}

SceneLayer& SceneLayers::Find(std::string key, SceneLayer layer) {
  const auto found = layers_.find(key);
  if (found != layers_.end()) return found->second;
  layer.id = IdOf(layer.id);
  std::string id = layer.id;
  for (int i = 2; !ids_.insert(id).second; ++i) id = layer.id + '-' + std::to_string(i);
  layer.id = id;
  return layers_.emplace(std::move(key), std::move(layer)).first->second;
}

SceneLayer& SceneLayers::OfNumber(int physicalLayer) {
  SceneLayer*& known = byNumber_[physicalLayer];
  if (known != nullptr) return *known;
  const Layer* layer = board_.FindLayer(physicalLayer);
  SceneLayer made;
  made.label =
      layer != nullptr && !layer->name.empty() ? layer->name : "SIGNAL_" + std::to_string(physicalLayer);
  made.id = made.label;
  made.role = Role::kCopper;
  made.order =
      physicalLayer == std::numeric_limits<int>::min() ? std::numeric_limits<int>::max() : -physicalLayer;
  if (layer != nullptr) made.spans = {static_cast<Index>(layer - board_.layers.data())};
  known = &Find("copper " + std::to_string(physicalLayer), std::move(made));
  return *known;
}

SceneLayer& SceneLayers::OfName(std::string_view logicalLayer) {
  const std::string_view name = ComparedName(logicalLayer);
  const auto known = byName_.find(name);
  if (known != byName_.end()) return *known->second;
  const auto find = [&]() -> SceneLayer& {
    if (const auto side = DrawingLayerOf(name)) {
      SceneLayer made;
      made.id = made.label = name;
      made.role = side->isBottom ? Role::kBelow : Role::kAbove;
      made.order = side->isBottom ? -side->order : side->order;
      return Find("drawing " + std::string(name), std::move(made));
    }
    if (const Layer* layer = board_.FindLayer(name)) return OfNumber(layer->number);
    const auto number = NumberIn(name);
    if (number && board_.layers.empty()) return OfNumber(*number);
    return OfRole(Role::kAbove, name.empty() ? "unnamed" : name, name.empty() ? "no layer" : name);
  };
  SceneLayer& layer = find();
  byName_.emplace(name, &layer);
  return layer;
}

SceneLayer& SceneLayers::OfRole(Role role, std::string_view id, std::string_view label) {
  SceneLayer made;
  made.id = id;
  made.label = label;
  made.role = role;
  made.order = -1;
  return Find("role " + std::to_string(static_cast<int>(role)) + ' ' + std::string(id), std::move(made));
}

SceneLayer& SceneLayers::OfSpan(Role role, std::string_view id, std::string_view label,
                                const std::vector<Index>& layers) {
  if (layers.empty() || layers.size() == board_.layers.size()) return OfRole(role, id, label);
  const Layer& first = board_.layers[layers.front()];
  const Layer& last = board_.layers[layers.back()];
  std::string numbers = '-' + std::to_string(first.number);
  std::string names = ' ' + first.name;
  if (layers.size() > 1) {
    numbers += '-' + std::to_string(last.number);
    names += " to " + last.name;
  }
  SceneLayer& layer = OfRole(role, std::string(id) + numbers, std::string(label) + names);
  layer.spans = layers;
  return layer;
}

bool SceneLayers::IsDimmed(const Owner& owner) const {
  if (brightNets_.empty()) return false;
  return owner.net == kNone || !brightNets_[owner.net];
}

void SceneLayers::Add(SceneLayer& layer, Brush brush, const Owner& owner, std::span<const Point> points) {
  AddWithHoles(layer, brush, owner, points, {});
}

void SceneLayers::AddWithHoles(SceneLayer& layer, Brush brush, const Owner& owner,
                               std::span<const Point> points, const std::vector<Polygon>& holes) {
  if (points.size() < (brush.form == Form::kFill ? 3U : 1U)) return;
  if (!(brush.width > 0.0 && IsNear(brush.width))) brush.width = 0.0;
  Box box = BoxAround(points);
  if (brush.form != Form::kFill) box.Grow(brush.width / 2.0);
  if (!CanBeDrawn(box) || (window_ && !window_->Meets(box))) return;
  bounds_.Add({box.x0, box.y0});
  bounds_.Add({box.x1, box.y1});
  brush.isDimmed = layer.role != Role::kBoard && layer.role != Role::kDrills && IsDimmed(owner);
  std::vector<Shape>& shapes = layer.batches[brush];
  shapes.push_back({points, owner, false});
  for (const Polygon& hole : holes) {
    if (hole.size() >= 3 && CanBeDrawn(BoxAround(hole))) shapes.push_back({hole, owner, true});
  }
}

void SceneLayers::Add(SceneLayer& layer, SceneText text, const Owner& owner) {
  const Box box = BoxAround(text);
  Box reach = box;  // of a font with wide letters
  reach.Grow(text.height + box.Width() + box.Height());
  if (text.text.empty() || !(text.height > 0.0) || !CanBeDrawn(box)) return;
  if (window_ && !window_->Meets(reach)) return;
  bounds_.Add({box.x0, box.y0});
  bounds_.Add({box.x1, box.y1});
  text.isDimmed = IsDimmed(owner);
  layer.texts.push_back(std::move(text));
}

std::vector<SceneLayer> SceneLayers::Take() {
  std::vector<SceneLayer> layers;
  for (auto& [key, layer] : layers_) {
    // A layer outside the window is a layer of the board, too: somebody may name it.
    if (window_ || !layer.IsEmpty()) layers.push_back(std::move(layer));
  }
  layers_.clear();
  byName_.clear();
  byNumber_.clear();
  std::stable_sort(layers.begin(), layers.end(), [](const SceneLayer& a, const SceneLayer& b) {
    return std::tuple(a.role, a.order) < std::tuple(b.role, b.order);
  });
  return layers;
}

}  // namespace kestrin::tool::draw
