#include "tool/diff/wires.h"

#include <algorithm>

#include "kestrin/board/polylines.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin::tool {
namespace {

/// Whether the points are to be read backwards.
bool IsBackward(const std::vector<Vertex>& vertices) {
  for (std::size_t i = 0, j = vertices.size() - 1; i < vertices.size(); ++i, --j) {
    const Point a = vertices[i].point;
    const Point b = vertices[j].point;
    if (a.x != b.x) return b.x < a.x;
    if (a.y != b.y) return b.y < a.y;
  }
  return false;
}

/// Reads the wires of a board.
class WireReader {
 public:
  /// Renaming is null for the second board.
  WireReader(const BoardSide& side, Point shift, const Sides* renaming)
      : side_(side), shift_(shift), renaming_(renaming) {
    for (Index i = 0; i < side.board.viaPadstacks.size(); ++i) vias_.Add(side.board.viaPadstacks[i].name, i);
  }

  [[nodiscard]] std::vector<Wire> Read() {
    std::vector<Wire> wires;
    if (side_.models.traces == nullptr) return wires;
    VertexReader reader(side_.board.units.traces, side_.board.reading.widthStep, vias_);
    ForEachRecord(side_.models.traces->m_pNetArray, [&](const CMTracesNET& header, Index) {
      const std::string_view net = ComparedName(header.m_sName.View());
      const std::string name(renaming_ == nullptr ? net : renaming_->NameAfter(net));
      ForEachPolyline(header, [&](const auto& polyline, WireKind kind, Index) {
        vertices_.clear();
        ForEachRecord(polyline.m_pSegArray, [&](const CMTracesSEG& record, Index) {
          vertices_.push_back(reader.Read(record));
          vertices_.back().point = Moved(vertices_.back().point, shift_);
        });
        if (!vertices_.empty()) wires.push_back(MakeWire(name, kind));
      });
    });
    return wires;
  }

 private:
  [[nodiscard]] Wire MakeWire(const std::string& net, WireKind kind) {
    const bool isBackward = IsBackward(vertices_);
    if (isBackward) std::reverse(vertices_.begin(), vertices_.end());
    Wire wire;
    wire.net = net;
    wire.legs = vertices_.size() - 1;
    std::string& key = wire.key;
    key.reserve(net.size() + vertices_.size() * (sizeof(Point) + sizeof(Copper) + kUsualViaName));
    key = net + '\n';
    AppendBytes(key, kind);
    for (const Vertex& vertex : vertices_) AppendBytes(key, vertex.point);
    wire.pathSize = key.size();
    for (std::size_t i = 0; i < wire.legs; ++i) {
      const Vertex& begin = vertices_[isBackward ? i + 1 : i];
      const Vertex& end = vertices_[isBackward ? i : i + 1];
      const Leg leg = LegBetween(begin, end);
      AppendBytes(key, Copper{static_cast<double>(leg.layer), leg.width});
    }
    for (const Vertex& vertex : vertices_) {
      if (vertex.via) key += side_.board.viaPadstacks[*vertex.via].name;
      key += '\n';
    }
    return wire;
  }

  static constexpr std::size_t kUsualViaName = 4;  // bytes for each point

  const BoardSide& side_;
  Point shift_;
  const Sides* renaming_;
  NameIndex vias_;
  std::vector<Vertex> vertices_;  // of the current wire
};

}  // namespace

MatchedWires MatchWires(const Sides& sides) {
  MatchedWires wires{.before = WireReader(sides.before, {}, &sides).Read(),
                     .after = WireReader(sides.after, sides.shift, nullptr).Read(),
                     .isExact = {}};
  Match(wires.before, wires.after, [](const Wire& wire) { return std::string_view(wire.key); });
  for (const Wire& wire : wires.before) wires.isExact.push_back(wire.match.has_value());
  Match(wires.before, wires.after, [](const Wire& wire) { return wire.Path(); });
  return wires;
}

}  // namespace kestrin::tool
