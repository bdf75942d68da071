#include "tool/draw/draw_board.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <memory>
#include <set>
#include <string_view>

#include "kestrin/geometry/geometry_model.h"
#include "kestrin/neutral/component_model.h"
#include "kestrin/traces/traces_model.h"
#include "tool/board.h"
#include "tool/diff/compare.h"
#include "tool/draw/build_scene.h"
#include "tool/draw/cairo_writer.h"
#include "tool/draw/changes.h"
#include "tool/draw/html_writer.h"
#include "tool/draw/near_names.h"
#include "tool/draw/output_file.h"
#include "tool/draw/picture.h"
#include "tool/draw/scene_layers.h"
#include "tool/draw/svg_writer.h"
#include "tool/usage_error.h"

namespace kestrin::tool::draw {
namespace {

using Writer = void (*)(const Picture& picture, OutputFile& file);

struct Format {
  std::string_view ending;
  Writer write;
  bool showsNets = false;  ///< highlights nets itself, so the scene need not dim the others
};
constexpr std::array kFormats{Format{".svg", WriteSvg}, Format{".png", WritePng}, Format{".pdf", WritePdf},
                              Format{".html", WriteHtml, true}};

const Format& FormatOf(const std::string& path) {
  for (const Format& format : kFormats) {
    if (path.ends_with(format.ending)) return format;
  }
  throw UsageError("no picture format for \"" + path + "\"; its name must end in .svg, .png, .pdf or .html");
}

View ViewOf(const std::string& word) {
  if (word == "top") return View::kTop;
  return word == "bottom" ? View::kBottom : View::kLayers;
}

std::optional<Box> BoxOf(const std::string& word) {
  if (word.empty()) return std::nullopt;
  std::array<double, 4> numbers{};
  const char* place = word.data();
  const char* const end = place + word.size();
  bool isRight = true;
  for (std::size_t i = 0; i < numbers.size() && isRight; ++i) {
    if (i > 0) isRight = place != end && *place++ == ',';
    const auto read = std::from_chars(place, end, numbers[i]);
    isRight = isRight && read.ec == std::errc() && std::abs(numbers[i]) <= 1e6;
    place = read.ptr;
  }
  const Box box{numbers[0], numbers[1], numbers[2], numbers[3]};
  if (!isRight || place != end || box.Width() < 0.001 || box.Height() < 0.001) {
    throw UsageError("--box needs four numbers in millimetres, x0,y0,x1,y1, with x0 < x1 and y0 < y1");
  }
  return box;
}

/// Which nets are to be bright; empty if all are.
std::vector<bool> BrightNets(const Board& board, const std::vector<std::string>& names) {
  std::vector<bool> bright;
  for (const std::string& name : names) {
    bright.resize(board.nets.size());
    const auto found = std::find_if(board.nets.begin(), board.nets.end(),
                                    [&](const Net& net) { return net.name == ComparedName(name); });
    if (found == board.nets.end()) {
      std::vector<std::string_view> known;
      for (const Net& net : board.nets) known.emplace_back(net.name);
      throw UsageError(NoSuchName("net", name, known));
    }
    bright[static_cast<std::size_t>(found - board.nets.begin())] = true;
  }
  return bright;
}

/// Whether a name that somebody typed means a layer: its label, its id, or a logical layer of its copper.
bool Means(const Board& board, const std::string& name, const SceneLayer& layer) {
  if (layer.label == name || layer.id == name) return true;
  const Layer* physical = board.FindLayer(name);
  if (layer.role != Role::kCopper || layer.spans.empty()) return false;
  if (physical == nullptr || IsDrawingLayer(name)) return false;
  return physical == &board.layers[layer.spans.front()];
}

/// Whether the board has a layer of a name, although nothing may be on it.
bool HasLayer(const Board& board, const std::string& name) {
  if (board.FindLayer(name) != nullptr) return true;
  return std::any_of(board.layers.begin(), board.layers.end(),
                     [&](const Layer& layer) { return layer.name == name; });
}

std::string NoSuchLayer(const Scene& scene, const std::string& name) {
  std::vector<std::string_view> known;
  for (const SceneLayer& layer : scene.layers) known.emplace_back(layer.label);
  for (const Layer& layer : scene.board->layers) known.emplace_back(layer.name);
  for (const auto& [logical, index] : scene.board->layersByName) known.emplace_back(logical);
  std::sort(known.begin(), known.end());
  known.erase(std::unique(known.begin(), known.end()), known.end());
  return NoSuchName("layer", name, known);
}

/// The layers of the scene that names choose. Vias and drills come with the copper that they reach.
std::optional<std::set<const SceneLayer*>> ChosenLayers(const Scene& scene,
                                                        const std::vector<std::string>& names) {
  if (names.empty()) return std::nullopt;
  std::set<const SceneLayer*> chosen;
  std::set<Index> copper;
  bool hasCopper = false;
  for (const std::string& name : names) {
    bool isKnown = HasLayer(*scene.board, name);
    for (const SceneLayer& layer : scene.layers) {
      if (!Means(*scene.board, name, layer)) continue;
      isKnown = true;
      chosen.insert(&layer);
      if (layer.role != Role::kCopper) continue;
      hasCopper = true;
      copper.insert(layer.spans.begin(), layer.spans.end());
    }
    if (!isKnown) throw UsageError(NoSuchLayer(scene, name));
  }
  for (const SceneLayer& layer : scene.layers) {
    if (layer.role == Role::kBoard) chosen.insert(&layer);
    if ((layer.role != Role::kVias && layer.role != Role::kDrills) || !hasCopper) continue;
    const bool reaches =
        layer.spans.empty() || std::any_of(layer.spans.begin(), layer.spans.end(),
                                           [&](Index index) { return copper.contains(index); });
    if (reaches) chosen.insert(&layer);
  }
  return chosen;
}

/// What a picture shows if nobody says it: everything, with a margin.
Box WholeBox(const Scene& scene, View view) {
  constexpr double kMargin = 0.02;
  const Polygon& outline = scene.board->outline;
  Box box = view != View::kLayers && outline.size() >= 3 ? BoxAround(outline) : scene.bounds;
  if (box.IsEmpty()) box = {0.0, 0.0, 1.0, 1.0};
  box.Grow(std::max({box.Width() * kMargin, box.Height() * kMargin, 0.5}));
  return box;
}

void CheckSize(const Picture& picture) {
  constexpr double kMost = 30000.0;
  if (!picture.width) return;
  const double height = *picture.width * picture.box.Height() / picture.box.Width();
  if (*picture.width < 1 || *picture.width > kMost)
    throw UsageError("--width needs a number from 1 to 30000");
  if (height > kMost)
    throw UsageError("the picture would be more than 30000 pixels high; choose a smaller --width");
}

/// Whether the unit of placements is known, and that of tracks, which may have one of their own. Geometries
/// always may.
bool AreUnitsKnown(const BoardModels& models) {
  const auto isKnown = [](const auto* named) { return MillimetresIn(named->m_sUnits.View()).has_value(); };
  const bool hasUnitOfTracks = models.traces == nullptr || isKnown(models.traces);
  if (models.components == nullptr && hasUnitOfTracks) return true;
  return (models.components != nullptr && isKnown(models.components)) ||
         (models.geometry != nullptr && isKnown(models.geometry->m_pBoard));
}

std::vector<std::string> WarningsOf(const Subject& subject, const Scene& scene) {
  std::vector<std::string> warnings;
  if (!AreUnitsKnown(ModelsIn(subject.imported))) {
    warnings.emplace_back("the unit of a file is unknown; the picture takes its lengths as millimetres");
  }
  if (!scene.board->reading.isConfirmed && !scene.board->components.empty()) {
    warnings.emplace_back(
        "placement of components is not confirmed by the copper; the picture may show them wrongly");
  }
  if (scene.componentsLeftOut > 0) {
    warnings.push_back(std::to_string(scene.componentsLeftOut) +
                       " components left out: their drawings are too large");
  }
  return warnings;
}

/// The comparison with another export.
struct Comparison {
  Sides sides;
  Difference difference;
};

/// Compares with the export that was asked for; null if none was.
std::unique_ptr<Comparison> ComparisonOf(const Subject& subject) {
  if (subject.against == nullptr) return nullptr;
  auto comparison = std::make_unique<Comparison>();
  comparison->sides = ReadSides(ModelsIn(subject.imported), ModelsIn(*subject.against));
  comparison->difference = Compare(comparison->sides);
  return comparison;
}

}  // namespace

void CheckWords(const DrawWords& words, bool isAgainst) {
  const Format& format = FormatOf(words.output);
  static_cast<void>(BoxOf(words.box));
  if (isAgainst && (format.showsNets || ViewOf(words.view) != View::kLayers))
    throw UsageError("--against needs a picture of all layers: .svg, .png or .pdf, without another --view");
  if (isAgainst && !words.nets.empty())
    throw UsageError("--against dims everything but the changes, so it does not go with --net");
}

std::vector<std::string> DrawBoard(const Subject& subject, const DrawWords& words) {
  CheckWords(words, subject.against != nullptr);
  const Format& format = FormatOf(words.output);
  const Board& board = subject.board;
  const std::optional<Box> box = BoxOf(words.box);
  Picture picture;
  SceneOptions sceneOptions;
  const std::unique_ptr<Comparison> comparison = ComparisonOf(subject);
  picture.chosenNets = BrightNets(board, words.nets);
  if (!format.showsNets) sceneOptions = {box, picture.chosenNets};
  if (comparison != nullptr) sceneOptions.brightNets.assign(board.nets.size(), false);
  Scene scene = BuildScene(board, subject.imported.session.GetGeom(), sceneOptions);
  if (comparison != nullptr) AddChanges(comparison->sides, comparison->difference, box, scene);
  picture.scene = &scene;
  picture.view = ViewOf(words.view);
  picture.theme = words.theme == "print" ? Theme::kPrint : Theme::kDark;
  picture.isThemeChosen = !words.theme.empty();
  picture.chosenLayers = ChosenLayers(scene, words.layers);
  picture.coats = CoatsOf(scene, picture.view, picture.theme, picture.chosenLayers);
  picture.background = BackgroundOf(picture.theme);
  picture.isMirrored = picture.view == View::kBottom;
  picture.hasTags = words.hasTags;
  picture.wholeBox = WholeBox(scene, picture.view);
  picture.box = box.value_or(picture.wholeBox);
  picture.width = words.width;
  CheckSize(picture);
  OutputFile file(words.output);
  format.write(picture, file);
  file.Complete();
  return WarningsOf(subject, scene);
}

}  // namespace kestrin::tool::draw
