#include <map>
#include <optional>

#include "kestrin/board/polygons.h"
#include "kestrin/geometry/geometry_fields.h"
#include "tool/diff/field_texts.h"
#include "tool/diff/matching.h"
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

/// The number of elements of a list; nothing for what is no list.
template <class T>
std::optional<double> CountIn(const T& /*value*/) {
  return std::nullopt;
}
template <class Type, class ArgType>
std::optional<double> CountIn(const CArray<Type, ArgType>* list) {
  return static_cast<double>(list->GetSize());
}

/// Compares the fields of the board geometry that the board does not have itself. If the board was moved, so
/// were the contents of its lists, and only their sizes are compared.
void CompareBoardGeometries(std::vector<Detail>& details, const CMGeomBoard& before, const CMGeomBoard& after,
                            bool isMoved) {
  const auto fieldsOf = [&](const CMGeomBoard& board) {
    std::vector<std::pair<std::string_view, std::string>> fields;
    ForEachField(board, [&](std::string_view name, const auto& value) {
      const auto count = CountIn(value);
      fields.emplace_back(name, isMoved && count ? TextOf(*count) : ContentOf(value));
    });
    return fields;
  };
  const auto fields = fieldsOf(before);
  const auto others = fieldsOf(after);
  for (std::size_t i = 0; i < fields.size(); ++i) {
    const std::string_view name = fields[i].first;
    if (name == "m_sName" || name == "m_sUnits" || name.find("Outline") != std::string_view::npos) continue;
    if (!AreEqual(fields[i].second, others[i].second))
      details.push_back({std::string(name), ShownValueOf(fields[i].second), ShownValueOf(others[i].second)});
  }
}

/// The routing outline in millimetres. The board has the placement outline, if there is one.
Polygon RoutingOutlineOf(const BoardSide& side, Point shift) {
  Polygon outline = PolygonOf(*side.models.geometry->m_pBoard->m_pRoutingOutline, side.board.units.geometry);
  for (Point& corner : outline) corner = Moved(corner, shift);
  return outline;
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
    CompareName(details, "name", layer->name, found->second->name);
    CompareName(details, "names", Joined(layer->names), Joined(found->second->names));
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
  CompareName(details, "name", before.name, after.name);
  CompareName(details, "outline", PointsOf(before.outline), PointsOf(after.outline));
  if (sides.before.models.geometry != nullptr && sides.after.models.geometry != nullptr) {
    CompareName(details, "routing outline", PointsOf(RoutingOutlineOf(sides.before, {})),
                PointsOf(RoutingOutlineOf(sides.after, sides.shift)));
    CompareBoardGeometries(details, *sides.before.models.geometry->m_pBoard,
                           *sides.after.models.geometry->m_pBoard, difference.shift.has_value());
  }
  if (!details.empty()) {
    difference.changes.push_back(
        {ChangedKind::kBoard, before.name, ChangeType::kChanged, std::move(details)});
  }
  if ((sides.before.models.tech == nullptr) == (sides.after.models.tech == nullptr))
    CompareLayers(before, after, difference);
}

}  // namespace kestrin::tool
