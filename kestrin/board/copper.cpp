#include "kestrin/board/copper.h"

#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

#include "kestrin/base/numbers.h"
#include "kestrin/board/millimetres.h"
#include "kestrin/board/records.h"
#include "kestrin/board/widths.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// The contents of a SEG record.
struct Vertex {
  Point point;
  int layer = 0;
  std::optional<double> width;
  std::optional<std::size_t> via;
};

/// Reads the polylines of net headers, one header at a time. It gathers all parts of a header before it moves
/// them to the net, so that the net's lists do not grow element by element.
class PolylineReader {
 public:
  PolylineReader(const Board& board, const NameIndex& viaPadstacks)
      : unit_(board.units.traces), widthStep_(board.reading.widthStep), viaPadstacks_(viaPadstacks) {}

  /// Gathers the tracks and vias of a polyline. Tracks copy their kind and indexes from origin.
  template <class Polyline>
  void Read(const Polyline& polyline, const Track& origin) {
    bool isFirst = true;
    Vertex begin;
    ForEachRecord(polyline.m_pSegArray, [&](const CMTracesSEG& record, std::size_t) {
      const Vertex end = Read(record);
      if (end.via) vias_.push_back({.position = end.point, .padstack = *end.via});
      if (!isFirst) AddLeg(begin, end, origin);
      isFirst = false;
      begin = end;
    });
    EndTrack(origin);
  }

  /// Moves everything gathered to the net.
  void MoveTo(Net& net) {
    Move(tracks_, net.tracks);
    Move(vias_, net.vias);
    Move(lengths_, net.lengths);
  }

 private:
  template <class T>
  static void Move(std::vector<T>& from, std::vector<T>& to) {
    to.insert(to.end(), std::make_move_iterator(from.begin()), std::make_move_iterator(from.end()));
    from.clear();
  }

  [[nodiscard]] Vertex Read(const CMTracesSEG& record) const {
    Vertex vertex;
    vertex.point = PointAt(record.m_dValue1, record.m_dValue2, unit_);
    vertex.layer = record.m_nValue3;
    const std::string_view text = record.m_sValue4.View();
    if (text.empty()) {
      if (widthStep_ && record.m_dValue4 > 0.0) vertex.width = Width(record.m_dValue4 * *widthStep_);
    } else if (IsDecimalNumber(text)) {
      vertex.width = Width(ToDouble(text));
    } else {
      vertex.via = viaPadstacks_.Find(ComparedName(text));
    }
    return vertex;
  }

  /// The width in millimetres; none unless it is positive and finite.
  [[nodiscard]] std::optional<double> Width(double inFile) const {
    const double width = Rounded(inFile * unit_);
    return width > 0.0 && std::isfinite(width) ? std::optional(width) : std::nullopt;
  }

  void AddLeg(const Vertex& begin, const Vertex& end, const Track& origin) {
    const int layer = begin.via ? end.layer : begin.layer;  // at a via the layer changes
    const std::optional<double> width = begin.width ? begin.width : end.width;
    if (layer != layer_ || width != width_) EndTrack(origin);
    if (layer == 0) return;
    if (points_.empty()) {
      layer_ = layer;
      width_ = width;
      points_.push_back(begin.point);
    }
    points_.push_back(end.point);
  }

  void EndTrack(const Track& origin) {
    if (points_.empty()) return;
    Track& track = tracks_.emplace_back(origin);
    track.points.assign(points_.begin(), points_.end());
    track.layer = layer_;
    track.width = width_;
    AddLength();
    points_.clear();
  }

  void AddLength() {
    double length = 0.0;
    for (std::size_t i = 1; i < points_.size(); ++i) length += Distance(points_[i - 1], points_[i]);
    if (lengths_.empty() || lengths_.back().layer != layer_) lengths_.push_back({.layer = layer_});
    lengths_.back().length += length;
  }

  double unit_;
  std::optional<double> widthStep_;
  const NameIndex& viaPadstacks_;
  std::vector<Point> points_;  // of the track that is being read
  int layer_ = 0;              // of that track
  std::optional<double> width_;
  std::vector<Track> tracks_;  // of the header
  std::vector<Via> vias_;
  std::vector<LayerLength> lengths_;
};

/// Adds up the lengths of each layer.
void SumUp(std::vector<LayerLength>& lengths) {
  std::sort(lengths.begin(), lengths.end(),
            [](const LayerLength& a, const LayerLength& b) { return a.layer < b.layer; });
  std::size_t last = 0;
  for (std::size_t i = 1; i < lengths.size(); ++i) {
    if (lengths[i].layer == lengths[last].layer) {
      lengths[last].length += lengths[i].length;
    } else {
      lengths[++last] = lengths[i];
    }
  }
  if (!lengths.empty()) lengths.resize(last + 1);
  for (LayerLength& length : lengths) length.length = Rounded(length.length);
}

}  // namespace

void ReadCopper(const CMTraces& traces, const NameIndex& viaPadstacks, NetTable& table, Board& board) {
  PolylineReader reader(board, viaPadstacks);
  ForEachRecord(traces.m_pNetArray, [&](const CMTracesNET& record, std::size_t header) {
    Net& net = table.Of(record.m_sName.View());
    net.headers.push_back(header);
    const auto readAll = [&](const auto& polylines, WireKind kind) {
      ForEachRecord(polylines, [&](const auto& polyline, std::size_t index) {
        reader.Read(polyline, {.points = {}, .width = {}, .kind = kind, .header = header, .polyline = index});
      });
    };
    readAll(record.m_pWirArray, WireKind::kWire);
    readAll(record.m_pAntWirArray, WireKind::kShortBranch);
    readAll(record.m_pAntIncArray, WireKind::kLongBranch);
    reader.MoveTo(net);
    ForEachRecord(record.m_pIncArray, [&](const CMTracesINCANT& open, std::size_t) {
      const double unit = board.units.traces;
      net.open.push_back({.from = PointAt(open.m_dValue2, open.m_dValue3, unit),
                          .to = PointAt(open.m_dValue5, open.m_dValue6, unit)});
    });
  });
  for (Net& net : board.nets) SumUp(net.lengths);
}

}  // namespace kestrin
