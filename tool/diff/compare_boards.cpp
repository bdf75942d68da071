#include <map>

#include "kestrin/geometry/geometry_fields.h"
#include "tool/diff/field_texts.h"
#include "tool/diff/sides.h"

namespace kestrin::tool {
namespace {

std::string PointsOf(const Polygon& outline) {
  std::string text;
  for (const Point point : outline) {
    text += (text.empty() ? "(" : " (") + TextOf(point.x) + ", " + TextOf(point.y) + ')';
  }
  return text;
}

std::string Joined(std::vector<std::string> names) {
  std::sort(names.begin(), names.end());
  std::string joined;
  for (const std::string& name : names) joined += (joined.empty() ? "" : ", ") + name;
  return joined;
}

/// The fields of the board geometry that the board does not have itself. Its outlines are in the unit of the
/// file and not moved, so they are left to the board. If the board was moved, so were the contents of its
/// lists.
void CompareBoardGeometries(std::vector<Detail>& details, const CMGeomBoard& before, const CMGeomBoard& after,
                            bool isMoved) {
  const auto texts = FieldTextsOf(before);
  const auto otherTexts = FieldTextsOf(after);
  for (std::size_t i = 0; i < texts.size(); ++i) {
    const std::string_view name = texts[i].first;
    if (name == "m_sName" || name == "m_sUnits" || name.find("Outline") != std::string_view::npos) continue;
    if (isMoved && name.starts_with("m_p")) continue;
    if (!AreEqual(texts[i].second, otherTexts[i].second))
      details.push_back({std::string(name), texts[i].second, otherTexts[i].second});
  }
}

void CompareLayers(const Board& before, const Board& after, Difference& difference) {
  const auto byNumber = [](const Board& board) {
    std::map<int, const Layer*> layers;
    for (const Layer& layer : board.layers) layers.emplace(layer.number, &layer);
    return layers;
  };
  const auto layers = byNumber(before);
  const auto otherLayers = byNumber(after);
  const auto add = [&](int number, ChangeType type, std::vector<Detail> details) {
    difference.changes.push_back({ChangedKind::kLayer, std::to_string(number), type, std::move(details)});
  };
  for (const auto& [number, layer] : layers) {
    const auto found = otherLayers.find(number);
    if (found == otherLayers.end()) {
      add(number, ChangeType::kRemoved, {});
      continue;
    }
    std::vector<Detail> details;
    CompareValue(details, "name", layer->name, found->second->name);
    CompareValue(details, "names", Joined(layer->names), Joined(found->second->names));
    if (!details.empty()) add(number, ChangeType::kChanged, std::move(details));
  }
  for (const auto& [number, layer] : otherLayers) {
    if (!layers.contains(number)) add(number, ChangeType::kAdded, {});
  }
}

}  // namespace

void CompareBoards(const Sides& sides, Difference& difference) {
  const Board& before = sides.before.board;
  const Board& after = sides.after.board;
  std::vector<Detail> details;
  CompareValue(details, "name", before.name, after.name);
  CompareValue(details, "outline", PointsOf(before.outline), PointsOf(after.outline));
  if (sides.before.models.geometry != nullptr && sides.after.models.geometry != nullptr) {
    CompareBoardGeometries(details, *sides.before.models.geometry->m_pBoard,
                           *sides.after.models.geometry->m_pBoard, difference.shift.has_value());
  }
  if (!details.empty()) {
    difference.changes.push_back(
        {ChangedKind::kBoard, before.name, ChangeType::kChanged, std::move(details)});
  }
  CompareLayers(before, after, difference);
}

}  // namespace kestrin::tool
