#include "kestrin/board/copper.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "kestrin/board/millimetres.h"
#include "kestrin/board/polylines.h"
#include "kestrin/board/widths.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// Reads polylines into lists, net by net.
class PolylineReader {
 public:
  PolylineReader(const VertexReader& vertices, CopperLists& lists) : lists_(lists), vertices_(vertices) {}

  void BeginNet(Net& net) {
    net.tracks.first = ToIndex(lists_.tracks.size());
    net.vias.first = ToIndex(lists_.vias.size());
  }

  /// Adds the tracks and vias of a polyline. Tracks copy their kind and indexes from origin.
  template <class Polyline>
  void Read(const Polyline& polyline, const Track& origin) {
    bool isFirst = true;
    Vertex begin;
    ForEachRecord(polyline.m_pSegArray, [&](const CMTracesSEG& record, Index) {
      const Vertex end = vertices_.Read(record);
      if (end.via) lists_.vias.push_back({.position = end.point, .padstack = *end.via});
      if (!isFirst) AddLeg(begin, end, origin);
      isFirst = false;
      begin = end;
    });
    EndTrack(origin);
  }

  void EndNet(Net& net) {
    net.tracks.count = ToIndex(lists_.tracks.size()) - net.tracks.first;
    net.vias.count = ToIndex(lists_.vias.size()) - net.vias.first;
    SumUpLengths(net);
  }

 private:
  void AddLeg(const Vertex& begin, const Vertex& end, const Track& origin) {
    const auto [layer, width] = LegBetween(begin, end);
    if (layer != layer_ || width != width_) EndTrack(origin);
    if (layer == 0) return;
    if (first_ == lists_.points.size()) {
      layer_ = layer;
      width_ = width;
      lists_.points.push_back(begin.point);
    }
    lists_.points.push_back(end.point);
  }

  void EndTrack(const Track& origin) {
    const Index count = ToIndex(lists_.points.size()) - first_;
    if (count == 0) return;
    Track& track = lists_.tracks.emplace_back(origin);
    track.points = {first_, count};
    track.layer = layer_;
    if (width_ != kUnknownWidth) track.width = width_;
    AddLength(std::span(lists_.points).subspan(first_));
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

  CopperLists& lists_;
  VertexReader vertices_;
  Index first_ = 0;                   // the first point of the track that is being read
  int layer_ = 0;                     // of that track
  double width_ = kUnknownWidth;      // of that track
  std::vector<LayerLength> lengths_;  // of the net
};

void ReadHeader(const CMTracesNET& record, Index header, PolylineReader& reader) {
  ForEachPolyline(record, [&](const auto& polyline, WireKind kind, Index index) {
    reader.Read(polyline, {.points = {}, .width = {}, .kind = kind, .header = header, .polyline = index});
  });
}

void ReadOpenConnections(const CMTracesNET& record, double unit, Net& net) {
  ForEachRecord(record.m_pIncArray, [&](const CMTracesINCANT& open, Index) {
    net.open.push_back({.from = PointAt(open.m_dValue2, open.m_dValue3, unit),
                        .to = PointAt(open.m_dValue5, open.m_dValue6, unit)});
  });
}

/// Appends a list to another, and returns the index of its first element there.
template <class Element>
Index Append(std::vector<Element> list, std::vector<Element>& whole) {
  const Index first = ToIndex(whole.size());
  static_cast<void>(ToIndex(whole.size() + list.size()));
  if (whole.empty()) {
    whole = std::move(list);
  } else {
    whole.insert(whole.end(), list.begin(), list.end());
  }
  return first;
}

}  // namespace

CopperLists::CopperLists(const CopperSurvey& survey, double share) {
  const auto room = [&](std::size_t elements) {
    return static_cast<std::size_t>(share * static_cast<double>(elements));
  };
  // Usually a track ends only with its polyline or at a via. The next track repeats the point.
  points.reserve(room(survey.points + survey.texts));
  tracks.reserve(room(survey.polylines + survey.texts));
  vias.reserve(room(survey.texts));
}

CopperReader::CopperReader(const CMTraces* traces, const NameIndex& viaPadstacks, const Board& board)
    : traces_(traces), unit_(board.units.traces), vertices_(unit_, board.reading.widthStep, viaPadstacks) {}

void CopperReader::Read(std::span<Net> nets, CopperLists& lists) const {
  PolylineReader reader(vertices_, lists);
  for (Net& net : nets) {
    reader.BeginNet(net);
    for (const Index header : net.headers) {
      const CMTracesNET& record = *traces_->m_pNetArray->GetAt(static_cast<std::int64_t>(header));
      ReadHeader(record, header, reader);
      ReadOpenConnections(record, unit_, net);
    }
    reader.EndNet(net);
  }
}

void AddCopper(CopperLists lists, std::span<Net> nets, Board& board) {
  const Index firstPoint = Append(std::move(lists.points), board.points);
  const Index firstTrack = Append(std::move(lists.tracks), board.tracks);
  const Index firstVia = Append(std::move(lists.vias), board.vias);
  for (Net& net : nets) {
    net.tracks.first += firstTrack;
    net.vias.first += firstVia;
  }
  for (auto track = board.tracks.begin() + firstTrack; track != board.tracks.end(); ++track)
    track->points.first += firstPoint;
}

}  // namespace kestrin
