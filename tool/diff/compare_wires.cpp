#include <algorithm>
#include <cstring>

#include "kestrin/board/polylines.h"
#include "kestrin/board/vertices.h"
#include "kestrin/traces/traces_model.h"
#include "tool/diff/matching.h"
#include "tool/diff/sides.h"
#include "tool/diff/values.h"

namespace kestrin::tool {
namespace {

/// The layer and width of a leg, without padding, so that equal ones have equal bytes.
struct Copper {
  double layer = 0.0;
  double width = kUnknownWidth;
};

/// A polyline, in the direction in which its points compare lower. Its key is net, kind and points, then the
/// legs, then the names of vias at its points.
struct Wire : Matchable {
  std::size_t pathSize = 0;  ///< of net, kind and points
  std::size_t legs = 0;      ///< the number of legs

  [[nodiscard]] std::string_view Path() const { return std::string_view(key).substr(0, pathSize); }
  [[nodiscard]] Copper CopperAt(std::size_t leg) const {
    Copper copper;
    std::memcpy(&copper, key.data() + pathSize + leg * sizeof copper, sizeof copper);
    return copper;
  }
  /// The names of vias, a line for each point.
  [[nodiscard]] std::string_view Vias() const {
    return std::string_view(key).substr(pathSize + legs * sizeof(Copper));
  }
};

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

/// The names of vias in the text of a wire, without the points that have none.
std::string ViaNames(std::string_view vias) {
  std::string names;
  for (std::size_t begin = 0; begin < vias.size();) {
    const std::size_t end = vias.find('\n', begin);
    if (end > begin) names += (names.empty() ? "" : ", ") + std::string(vias.substr(begin, end - begin));
    begin = end + 1;
  }
  return names;
}

/// How two wires with the same path differ. Of several legs, the first that differs is shown.
std::vector<Detail> DetailsOf(const Wire& before, const Wire& after) {
  std::vector<Detail> details;
  const auto compare = [&](const char* what, auto member) {
    for (std::size_t i = 0; i < before.legs; ++i) {
      const auto from = before.CopperAt(i).*member;
      const auto to = after.CopperAt(i).*member;
      if (from == to) continue;
      const auto valueOf = [](double number) { return number == 0.0 ? Value() : Value(number); };
      details.push_back({what, valueOf(from), valueOf(to)});
      return;
    }
  };
  compare("layer", &Copper::layer);
  compare("width", &Copper::width);
  if (before.Vias() != after.Vias())
    CompareValue(details, "via", ViaNames(before.Vias()), ViaNames(after.Vias()));
  return details;
}

}  // namespace

void CompareWires(const Sides& sides, Difference& difference) {
  std::vector<Wire> before = WireReader(sides.before, {}, &sides).Read();
  std::vector<Wire> after = WireReader(sides.after, sides.shift, nullptr).Read();
  Match(before, after, [](const Wire& wire) { return std::string_view(wire.key); });
  std::vector<bool> isExact(before.size());
  for (std::size_t i = 0; i < before.size(); ++i) isExact[i] = before[i].match.has_value();
  Match(before, after, [](const Wire& wire) { return wire.Path(); });
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (isExact[i] || !before[i].match) continue;
    std::vector<Detail> details = DetailsOf(before[i], after[*before[i].match]);
    difference.changes.push_back(
        {ChangedKind::kWire, before[i].net, ChangeType::kChanged, std::move(details)});
  }
  ReportUnmatched(ChangedKind::kWire, before, after, difference);
}

}  // namespace kestrin::tool
