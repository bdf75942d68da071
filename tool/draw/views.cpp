#include "tool/draw/views.h"

#include <algorithm>
#include <array>
#include <optional>
#include <span>
#include <string_view>

namespace kestrin::tool::draw {
namespace {

struct Ink {
  Colour dark;
  Colour print;

  [[nodiscard]] Colour In(Theme theme) const { return theme == Theme::kDark ? dark : print; }
};

constexpr Ink kBackground{0x10151c, 0xffffff};
constexpr Ink kBoard{0x1a212b, 0xf4f2ec};
constexpr Ink kTopCopper{0xe5534b, 0xb3261e};
constexpr Ink kBottomCopper{0x4c8dff, 0x1f4fbf};
constexpr std::array kInnerCopper{Ink{0x4fb477, 0x1d7a43}, Ink{0xd9a441, 0x9a6a00}, Ink{0xb07ce0, 0x6f3aa8},
                                  Ink{0x3fb8c4, 0x0c6f7a}, Ink{0xd9779f, 0xa02b62}, Ink{0x9fb04a, 0x5c6b10}};
constexpr Ink kVias{0xc9ced6, 0x5c636e};
constexpr Ink kPlacements{0x5c6b80, 0x9aa3b0};
constexpr Ink kBodies{0x8fa3bd, 0x46566b};
constexpr Ink kKeepouts{0xff7a45, 0xc2410c};
constexpr Ink kRemovedInk{0xff4d4d, 0xd11a1a};
constexpr Ink kAddedInk{0x3ddc84, 0x0a8f3c};
constexpr Ink kOpen{0xffe066, 0x8a6d00};

/// By the beginning of the name.
struct NamedInk {
  std::string_view name;
  Ink ink;
};
constexpr std::array kDrawingInks{
    NamedInk{"SILKSCREEN", {0xf0efe6, 0x2b2b2b}},
    NamedInk{"PLACE", kPlacements},
    NamedInk{"SOLDER_MASK", {0x3f9d68, 0x2f7d50}},
    NamedInk{"PASTE_MASK", {0x9aa3b0, 0x7b8490}},
};
constexpr Ink kOtherDrawing{0x7f8896, 0x7b8490};

/// The finished board.
constexpr Colour kMask = 0x14532d;
constexpr Colour kCoveredCopper = 0x23794a;
constexpr Colour kBareBoard = 0xb6a878;
constexpr Colour kBareCopper = 0xe2bd62;
constexpr Colour kSilkscreen = 0xf5f4ee;

const std::set<Part> kAllParts{Part::kArea, Part::kTrack, Part::kDrawing, Part::kPad};

Ink InkOfDrawing(std::string_view name) {
  for (const NamedInk& row : kDrawingInks) {
    if (name.starts_with(row.name)) return row.ink;
  }
  return kOtherDrawing;
}

/// The layers of copper from the bottom to the top. They are side by side, since layers are in drawing order.
std::span<const SceneLayer> CopperOf(const Scene& scene) {
  const std::vector<SceneLayer>& layers = scene.layers;
  const auto first = std::partition_point(layers.begin(), layers.end(),
                                          [](const SceneLayer& layer) { return layer.role < Role::kCopper; });
  const auto last = std::partition_point(first, layers.end(),
                                         [](const SceneLayer& layer) { return layer.role == Role::kCopper; });
  return {first, last};
}

Ink InkOfCopper(const Scene& scene, const SceneLayer& layer) {
  const std::span<const SceneLayer> copper = CopperOf(scene);
  const auto depth = static_cast<std::size_t>(&layer - copper.data()) + 1;  // 1 is the bottom
  const std::vector<Layer>& all = scene.board->layers;
  if (!layer.spans.empty()) {
    const Index index = layer.spans.front();
    if (index == 0) return kTopCopper;
    if (index + 1 == all.size()) return kBottomCopper;
    return kInnerCopper[(index - 1) % kInnerCopper.size()];
  }
  if (depth == copper.size()) return kTopCopper;
  return depth == 1 ? kBottomCopper : kInnerCopper[depth % kInnerCopper.size()];
}

Ink InkOf(const Scene& scene, const SceneLayer& layer) {
  switch (layer.role) {
    case Role::kBoard: return kBoard;
    case Role::kCopper: return InkOfCopper(scene, layer);
    case Role::kVias: return kVias;
    case Role::kPlacements: return kPlacements;
    case Role::kBodies: return kBodies;
    case Role::kKeepouts: return kKeepouts;
    case Role::kOpen: return kOpen;
    case Role::kDrills: return kBackground;
    case Role::kRemoved: return kRemovedInk;
    case Role::kAdded: return kAddedInk;
    case Role::kBelow:
    case Role::kAbove: break;
  }
  return InkOfDrawing(layer.label);
}

/// How the areas of a layer are filled in the view of all layers: planes would hide everything else.
Fill FillOfAreas(const SceneLayer& layer) {
  if (layer.role == Role::kBoard) return {1.0, true};
  if (layer.role == Role::kKeepouts) return {0.12, true};
  return {0.18, true};
}

/// Masks would hide the pads in them.
bool IsMask(const SceneLayer& layer) {
  return layer.role != Role::kCopper && layer.label.find("MASK") != std::string::npos;
}

/// A coat of a whole layer in the view of all layers.
Coat WholeLayer(const Scene& scene, const SceneLayer& layer, Theme theme) {
  Coat coat;
  coat.layer = &layer;
  coat.id = layer.id;
  coat.label = layer.label;
  coat.parts = kAllParts;
  coat.hasTexts = true;
  coat.colour = ColourOf(scene, layer, theme);
  coat.contour = layer.role == Role::kBoard ? kBodies.In(theme) : coat.colour;
  coat.areas = FillOfAreas(layer);
  if (IsMask(layer)) coat.others = {0.0, true};
  if (layer.label.starts_with("PLACE")) coat.others = {0.2, true};
  return coat;
}

std::vector<Coat> AllLayers(const Scene& scene, Theme theme) {
  std::vector<Coat> coats;
  for (const SceneLayer& layer : scene.layers) coats.push_back(WholeLayer(scene, layer, theme));
  return coats;
}

/// The outermost layer of the board on a side; none if the files list no layers.
std::optional<Index> OuterLayer(const Board& board, Side side) {
  if (board.layers.empty()) return std::nullopt;
  return side == Side::kTop ? 0 : static_cast<Index>(board.layers.size() - 1);
}

/// The copper of that layer; if there are no layers, the outermost copper. May be null.
const SceneLayer* OuterCopper(const Scene& scene, Side side, std::optional<Index> layer) {
  const std::span<const SceneLayer> copper = CopperOf(scene);
  if (!layer) {
    if (copper.empty()) return nullptr;
    return side == Side::kTop ? &copper.back() : &copper.front();
  }
  for (const SceneLayer& candidate : copper) {
    if (candidate.spans == std::vector{*layer}) return &candidate;
  }
  return nullptr;
}

bool Reaches(const SceneLayer& layer, std::optional<Index> outer) {
  return layer.spans.empty() || !outer ||
         std::find(layer.spans.begin(), layer.spans.end(), *outer) != layer.spans.end();
}

/// The coats of the finished board from one side, by what is nearest to the board first.
class FinishedBoard {
 public:
  FinishedBoard(const Scene& scene, Side side, Theme theme) : scene_(scene) {
    const std::optional<Index> reached = OuterLayer(*scene.board, side);
    const SceneLayer* outer = OuterCopper(scene, side, reached);
    const std::string ending = side == Side::kTop ? "_1" : "_2";
    ForRole(Role::kBoard, [&](const SceneLayer& layer) { Add(layer, kMask); });
    if (outer != nullptr) Add(*outer, kCoveredCopper, "", {Part::kArea, Part::kTrack});
    ForRole(Role::kVias, [&](const SceneLayer& layer) {
      if (Reaches(layer, reached)) Add(layer, kCoveredCopper);
    });
    AddDrawing("SOLDER_MASK" + ending, kBareBoard);
    if (outer != nullptr) Add(*outer, kBareCopper, "-pads", {Part::kPad, Part::kDrawing});
    AddDrawing("SILKSCREEN" + ending, kSilkscreen);
    ForRole(Role::kDrills, [&](const SceneLayer& layer) {
      if (Reaches(layer, reached)) Add(layer, BackgroundOf(theme));
    });
  }

  [[nodiscard]] std::vector<Coat> Take() { return std::move(coats_); }

 private:
  template <class Action>
  void ForRole(Role role, Action action) {
    for (const SceneLayer& layer : scene_.layers) {
      if (layer.role == role) action(layer);
    }
  }
  void AddDrawing(std::string_view label, Colour colour) {
    for (const SceneLayer& layer : scene_.layers) {
      const bool isDrawing = layer.role == Role::kBelow || layer.role == Role::kAbove;
      if (isDrawing && layer.label == label) Add(layer, colour);
    }
  }
  void Add(const SceneLayer& layer, Colour colour, std::string_view suffix = "",
           const std::set<Part>& parts = kAllParts) {
    Coat coat;
    coat.layer = &layer;
    coat.id = layer.id + std::string(suffix);
    coat.label = layer.label;
    coat.parts = parts;
    coat.hasTexts = parts.contains(Part::kDrawing);
    coat.colour = coat.contour = colour;
    coats_.push_back(std::move(coat));
  }

  const Scene& scene_;
  std::vector<Coat> coats_;
};

}  // namespace

Colour BackgroundOf(Theme theme) { return kBackground.In(theme); }

Colour ColourOf(const Scene& scene, const SceneLayer& layer, Theme theme) {
  return InkOf(scene, layer).In(theme);
}

std::vector<Coat> CoatsOf(const Scene& scene, View view, Theme theme,
                          const std::optional<std::set<const SceneLayer*>>& chosen) {
  std::vector<Coat> coats =
      view == View::kLayers
          ? AllLayers(scene, theme)
          : FinishedBoard(scene, view == View::kTop ? Side::kTop : Side::kBottom, theme).Take();
  std::erase_if(coats, [&](const Coat& coat) {
    return coat.layer->IsEmpty() || (chosen && !chosen->contains(coat.layer));
  });
  return coats;
}

}  // namespace kestrin::tool::draw
