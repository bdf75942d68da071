// Reads four files and makes the board that they describe, under the reading that fits and under given ones.

#include <cmath>
#include <string>

#include "fuzz/four_files.h"
#include "fuzz/subjects.h"
#include "kestrin/board/read_board.h"
#include "tool/board_document.h"

namespace kestrin::fuzz {
namespace {

template <class Reader>
void ReadLines(Reader& reader, std::string_view text) {
  try {
    for (const std::string_view line : LinesOf(text)) static_cast<void>(reader.ReadLine(line));
  } catch (const CInvalidArgException&) {
    return;  // the model has what came before
  }
}

std::string JsonOf(const Board& board) {
  return ValidJson([&](tool::JsonWriter& json) { Write(json, board); });
}

void RequireNumber(Point point) {
  Require(!std::isnan(point.x) && !std::isnan(point.y), "no coordinate is not-a-number");
}

void RequirePoints(std::span<const Point> points) {
  for (const Point& point : points) RequireNumber(point);
}

/// Requires that every index is one of its list, and that every coordinate is a number.
void RequireConsistent(const Board& board) {
  for (const Component& component : board.components) {
    RequireNumber(component.position);
    for (const Pin& pin : board.PinsOf(component)) {
      RequireNumber(pin.position);
      Require(!pin.padstack || *pin.padstack < board.padstacks.size(), "the padstack of a pin exists");
      Require(!pin.net || *pin.net < board.nets.size(), "the net of a pin exists");
    }
  }
  for (const Net& net : board.nets) {
    for (const NetPin& pin : board.PinsOf(net)) {
      Require(!pin.component || *pin.component < board.components.size(), "the component of a pin exists");
      Require(!pin.pin || *pin.pin - board.components[*pin.component].pins.first <
                              board.components[*pin.component].pins.count,
              "the pin of a net exists");
    }
    for (const Track& track : board.TracksOf(net)) {
      Require(track.points.count > 1 && track.layer != 0, "a track has legs on a layer");
      RequirePoints(board.PointsOf(track));
    }
    for (const Via& via : board.ViasOf(net)) {
      RequireNumber(via.position);
      Require(via.padstack < board.viaPadstacks.size(), "the padstack of a via exists");
    }
    for (const Area& area : net.areas) {
      RequirePoints(area.outline);
      for (const Polygon& hole : area.holes) RequirePoints(hole);
    }
    for (const LayerLength& length : net.lengths)
      Require(!std::isnan(length.length), "no length is not-a-number");
  }
  Require(board.reading.pinsTouching <= board.reading.pinsCounted, "no more pins touch than there are");
}

}  // namespace
}  // namespace kestrin::fuzz

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  using namespace kestrin;
  using namespace kestrin::fuzz;
  const FourFiles files(TextOf(bytes, size));
  TechSubject tech;
  NeutralSubject neutral;
  GeometrySubject geometry;
  TracesSubject traces;
  ReadLines(tech.reader, files.texts[0]);
  ReadLines(neutral.reader, files.texts[1]);
  ReadLines(geometry.reader, files.texts[2]);
  ReadLines(traces.reader, files.texts[3]);

  const BoardModels models{.tech = files.texts[0].empty() ? nullptr : &tech.model,
                           .components = &neutral.components,
                           .nets = &neutral.nets,
                           .geometry = &geometry.model,
                           .traces = &traces.model};
  const Board fitted = ReadBoard(models);
  RequireConsistent(fitted);
  Require(JsonOf(fitted) == JsonOf(ReadBoard(models)), "the same models make the same board");
  RequireConsistent(ReadBoard(models, {.rotation = Sense::kClockwise, .bottomTurn = 180}));
  return 0;
}
