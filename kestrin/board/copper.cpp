#include "kestrin/board/copper.h"

#include <algorithm>
#include <cmath>

#include "kestrin/board/millimetres.h"
#include "kestrin/board/polylines.h"
#include "kestrin/board/vertices.h"
#include "kestrin/board/widths.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// Reads polylines into the lists of a board, net by net.
class PolylineReader {
 public:
  PolylineReader(const CopperSurvey& survey, const NameIndex& viaPadstacks, Board& board)
      : board_(board), vertices_(board.units.traces, board.reading.widthStep, viaPadstacks) {
    // Usually a track ends only with its polyline or at a via. The next track repeats the point.
    board.points.reserve(survey.points + survey.texts);
    board.tracks.reserve(survey.polylines + survey.texts);
    board.vias.reserve(survey.texts);
  }

  void BeginNet(Net& net) {
    net.tracks.first = ToIndex(board_.tracks.size());
    net.vias.first = ToIndex(board_.vias.size());
  }

  /// Adds the tracks and vias of a polyline. Tracks copy their kind and indexes from origin.
  template <class Polyline>
  void Read(const Polyline& polyline, const Track& origin) {
    bool isFirst = true;
    Vertex begin;
    ForEachRecord(polyline.m_pSegArray, [&](const CMTracesSEG& record, Index) {
      const Vertex end = vertices_.Read(record);
      if (end.via) board_.vias.push_back({.position = end.point, .padstack = *end.via});
      if (!isFirst) AddLeg(begin, end, origin);
      isFirst = false;
      begin = end;
    });
    EndTrack(origin);
  }

  void EndNet(Net& net) {
    net.tracks.count = ToIndex(board_.tracks.size()) - net.tracks.first;
    net.vias.count = ToIndex(board_.vias.size()) - net.vias.first;
    SumUpLengths(net);
  }

 private:
  void AddLeg(const Vertex& begin, const Vertex& end, const Track& origin) {
    const auto [layer, width] = LegBetween(begin, end);
    if (layer != layer_ || width != width_) EndTrack(origin);
    if (layer == 0) return;
    if (first_ == board_.points.size()) {
      layer_ = layer;
      width_ = width;
      board_.points.push_back(begin.point);
    }
    board_.points.push_back(end.point);
  }

  void EndTrack(const Track& origin) {
    const Index count = ToIndex(board_.points.size()) - first_;
    if (count == 0) return;
    Track& track = board_.tracks.emplace_back(origin);
    track.points = {first_, count};
    track.layer = layer_;
    if (width_ != kUnknownWidth) track.width = width_;
    AddLength(board_.PointsOf(track));
    first_ += count;
  }

  void AddLength(std::span<const Point> points) {
    double length = 0.0;
    for (std::size_t i = 1; i < points.size(); ++i) length += Distance(points[i - 1], points[i]);
    if (lengths_.empty() || lengths_.back().layer != layer_) lengths_.push_back({.layer = layer_});
    lengths_.back().length += length;
  }

  /// Adds up the lengths of each layer of the net.
  void SumUpLengths(Net& net) {
    std::stable_sort(lengths_.begin(), lengths_.end(),
                     [](const LayerLength& a, const LayerLength& b) { return a.layer < b.layer; });
    std::size_t layers = 0;
    for (const LayerLength& length : lengths_) {
      if (layers == 0 || lengths_[layers - 1].layer != length.layer) {
        lengths_[layers++] = length;
      } else {
        lengths_[layers - 1].length += length.length;
      }
    }
    net.lengths.assign(lengths_.begin(), lengths_.begin() + static_cast<std::ptrdiff_t>(layers));
    for (LayerLength& length : net.lengths) length.length = Rounded(length.length);
    lengths_.clear();
  }

  Board& board_;
  VertexReader vertices_;
  Index first_ = 0;                   // the first point of the track that is being read
  int layer_ = 0;                     // of that track
  double width_ = kUnknownWidth;      // of that track
  std::vector<LayerLength> lengths_;  // of the net
};

}  // namespace

void ReadCopper(const CMTraces& traces, const CopperSurvey& survey, const NameIndex& viaPadstacks,
                NetTable& table, Board& board) {
  ForEachRecord(traces.m_pNetArray, [&](const CMTracesNET& record, Index header) {
    table.Of(record.m_sName.View()).headers.push_back(header);
  });
  PolylineReader reader(survey, viaPadstacks, board);
  for (Net& net : board.nets) {
    reader.BeginNet(net);
    for (const Index header : net.headers) {
      const CMTracesNET& record = *traces.m_pNetArray->GetAt(static_cast<std::int64_t>(header));
      ForEachPolyline(record, [&](const auto& polyline, WireKind kind, Index index) {
        reader.Read(polyline, {.points = {}, .width = {}, .kind = kind, .header = header, .polyline = index});
      });
      ForEachRecord(record.m_pIncArray, [&](const CMTracesINCANT& open, Index) {
        const double unit = board.units.traces;
        net.open.push_back({.from = PointAt(open.m_dValue2, open.m_dValue3, unit),
                            .to = PointAt(open.m_dValue5, open.m_dValue6, unit)});
      });
    }
    reader.EndNet(net);
  }
}

}  // namespace kestrin
