#include "tool/board_json.h"

#include <optional>
#include <span>
#include <vector>

#include "tool/board.h"

namespace kestrin::tool {
namespace {

void WriteText(JsonWriter& json, const char* name, std::string_view bytes) {
  json.Key(name);
  json.String(bytes);
}

void WriteNumber(JsonWriter& json, const char* name, double number) {
  json.Key(name);
  json.Double(number);
}

void WriteNumber(JsonWriter& json, const char* name, std::optional<double> number) {
  json.Key(name);
  number ? json.Double(*number) : json.Null();
}

void WriteFlag(JsonWriter& json, const char* name, bool flag) {
  json.Key(name);
  json.Bool(flag);
}

void WritePoint(JsonWriter& json, Point point) {
  json.StartArray(JsonWriter::Layout::kRow);
  json.Double(point.x);
  json.Double(point.y);
  json.EndArray();
}

void WritePosition(JsonWriter& json, Point point) {
  WriteNumber(json, "x", point.x);
  WriteNumber(json, "y", point.y);
}

void WritePoints(JsonWriter& json, const char* name, std::span<const Point> points) {
  WriteList(json, name, points, [&](Point point) { WritePoint(json, point); });
}

const char* NameOf(Sense sense) { return sense == Sense::kClockwise ? kClockwise : kCounterClockwise; }

void WriteReading(JsonWriter& json, const Reading& reading) {
  json.Key("reading");
  json.StartObject();
  WriteText(json, "rotation", NameOf(reading.rotation));
  WriteText(json, "bottom", NameOf(reading.bottom));
  json.Key("bottomTurn");
  json.Int(reading.bottomTurn);
  WriteNumber(json, "widthStep", reading.widthStep);
  WriteFlag(json, "fitted", reading.isFitted);
  WriteFlag(json, "confirmed", reading.isConfirmed);
  json.Key("pinsTouching");
  json.Int(static_cast<std::int64_t>(reading.pinsTouching));
  json.Key("pinsCounted");
  json.Int(static_cast<std::int64_t>(reading.pinsCounted));
  json.EndObject();
}

void WriteLayer(JsonWriter& json, const Layer& layer) {
  json.StartObject();
  json.Key("number");
  json.Int(layer.number);
  WriteText(json, "name", layer.name);
  WriteList(json, "names", layer.names, [&](const std::string& name) { json.String(name); });
  json.EndObject();
}

void WritePin(JsonWriter& json, const Board& board, const Pin& pin) {
  json.StartObject();
  WriteText(json, "name", pin.name);
  WritePosition(json, pin.position);
  json.Key("padstack");
  pin.padstack ? json.String(board.padstacks[*pin.padstack].name) : json.Null();
  json.Key("net");
  pin.net ? json.String(board.nets[*pin.net].name) : json.Null();
  json.EndObject();
}

void WriteComponent(JsonWriter& json, const Board& board, const Component& component) {
  json.StartObject();
  WriteText(json, "name", component.name);
  WriteText(json, "part", component.part);
  WriteText(json, "symbol", component.symbol);
  WriteText(json, "geometry", component.geometry);
  WritePosition(json, component.position);
  json.Key("rotation");
  json.Int(component.rotation);
  WriteText(json, "side", component.side == Side::kTop ? "top" : "bottom");
  WriteList(json, "pins", board.PinsOf(component), [&](const Pin& pin) { WritePin(json, board, pin); });
  json.EndObject();
}

void WriteTrack(JsonWriter& json, const Board& board, const Track& track) {
  json.StartObject();
  json.Key("layer");
  json.Int(track.layer);
  WriteNumber(json, "width", track.width);
  WritePoints(json, "points", board.PointsOf(track));
  json.EndObject();
}

void WriteLength(JsonWriter& json, const LayerLength& length) {
  json.StartObject();
  json.Key("layer");
  json.Int(length.layer);
  WriteNumber(json, "mm", length.length);
  json.EndObject();
}

void WriteVia(JsonWriter& json, const Board& board, const Via& via) {
  json.StartObject();
  WriteText(json, "name", board.viaPadstacks[via.padstack].name);
  WritePosition(json, via.position);
  json.EndObject();
}

void WriteArea(JsonWriter& json, const Area& area) {
  json.StartObject();
  WriteText(json, "layer", area.layer);
  WritePoints(json, "outline", area.outline);
  WriteList(json, "holes", area.holes, [&](const Polygon& hole) {
    json.StartArray();
    for (const Point point : hole) WritePoint(json, point);
    json.EndArray();
  });
  json.EndObject();
}

void WriteOpen(JsonWriter& json, const OpenConnection& open) {
  json.StartArray();
  WritePoint(json, open.from);
  WritePoint(json, open.to);
  json.EndArray();
}

void WriteNet(JsonWriter& json, const Board& board, const Net& net) {
  json.StartObject();
  WriteText(json, "name", net.name);
  WriteList(json, "pins", board.PinsOf(net), [&](const NetPin& pin) { json.String(pin.name); });
  WriteList(json, "tracks", board.TracksOf(net), [&](const Track& track) { WriteTrack(json, board, track); });
  WriteList(json, "length", net.lengths, [&](const LayerLength& length) { WriteLength(json, length); });
  WriteList(json, "vias", board.ViasOf(net), [&](const Via& via) { WriteVia(json, board, via); });
  WriteList(json, "areas", net.areas, [&](const Area& area) { WriteArea(json, area); });
  WriteList(json, "open", net.open, [&](const OpenConnection& open) { WriteOpen(json, open); });
  json.EndObject();
}

}  // namespace

void WriteJson(JsonWriter& json, const Board& board) {
  json.StartObject();
  WriteText(json, "format", "kestrin-board");
  json.Key("version");
  json.Int(1);
  WriteText(json, "name", board.name);
  WriteText(json, "units", "mm");
  WriteReading(json, board.reading);
  if (board.outline.empty()) {
    json.Key("outline");
    json.Null();
  } else {
    WritePoints(json, "outline", board.outline);
  }
  WriteList(json, "layers", board.layers, [&](const Layer& layer) { WriteLayer(json, layer); });
  WriteList(json, "components", board.components,
            [&](const Component& component) { WriteComponent(json, board, component); });
  WriteList(json, "nets", board.nets, [&](const Net& net) { WriteNet(json, board, net); });
  json.EndObject();
}

}  // namespace kestrin::tool
