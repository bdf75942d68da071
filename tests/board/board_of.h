#pragma once

#include <sstream>
#include <string>

#include "kestrin/board/read_board.h"
#include "kestrin/geometry/geometry_reader.h"
#include "kestrin/neutral/neutral_reader.h"
#include "kestrin/tech/tech_reader.h"
#include "kestrin/traces/traces_reader.h"
#include "tests/support/feed.h"

namespace kestrin::test {

/// The texts of an export set. An empty text means a missing file.
struct Texts {
  std::string tech;
  std::string neutral;
  std::string geometry;
  std::string traces;
};

/// The models of an export set.
class Models {
 public:
  explicit Models(const Texts& texts) : texts_(texts) {
    TechReader tech(tech_);
    Feed(tech, texts.tech);
    NeutralReader neutral(components_, nets_, selection_);
    Feed(neutral, texts.neutral);
    GeometryReader geometry(geometry_);
    Feed(geometry, texts.geometry);
    TracesReader traces(traces_);
    Feed(traces, texts.traces);
  }

  [[nodiscard]] Board Read(const BoardOptions& options = {}) const {
    return ReadBoard({.tech = texts_.tech.empty() ? nullptr : &tech_,
                      .components = texts_.neutral.empty() ? nullptr : &components_,
                      .nets = texts_.neutral.empty() ? nullptr : &nets_,
                      .geometry = texts_.geometry.empty() ? nullptr : &geometry_,
                      .traces = texts_.traces.empty() ? nullptr : &traces_},
                     options);
  }

 private:
  Texts texts_;
  CMTech tech_;
  CMComps components_;
  CMNetList nets_;
  BoardSelection selection_;
  CMGeom geometry_;
  CMTraces traces_;
};

inline Board BoardOf(const Texts& texts, const BoardOptions& options = {}) {
  return Models(texts).Read(options);
}

inline std::ostream& operator<<(std::ostream& out, std::span<const Point> points) {
  for (const Point point : points) out << '(' << point.x << ' ' << point.y << ')';
  return out;
}

/// A line for each component: "U1 top 90 (1 2): 1(0 0) P=GND 2(1 0)".
inline std::string Components(const Board& board) {
  std::ostringstream text;
  for (const Component& component : board.components) {
    text << component.name << (component.side == Side::kTop ? " top " : " bottom ") << component.rotation
         << ' ' << Polygon{component.position} << ':';
    for (const Pin& pin : board.PinsOf(component)) {
      text << ' ' << pin.name << Polygon{pin.position};
      if (pin.padstack) text << board.padstacks[*pin.padstack].name;
      if (pin.net) text << '=' << board.nets[*pin.net].name;
    }
    text << '\n';
  }
  return text.str();
}

/// A line for each net: "GND: U1-1 U1-2?". A question mark follows pins that are not on the board.
inline std::string NetPins(const Board& board) {
  std::ostringstream text;
  for (const Net& net : board.nets) {
    text << net.name << ':';
    for (const NetPin& pin : board.PinsOf(net)) text << ' ' << pin.name << (pin.pin ? "" : "?");
    text << '\n';
  }
  return text.str();
}

/// The copper of all nets: "1w0.25(0 0)(1 0) V1@(1 0) open(0 0)(1 1) length1=1".
inline std::string Copper(const Board& board) {
  std::ostringstream text;
  for (const Net& net : board.nets) {
    if (board.nets.size() > 1) text << net.name << ": ";
    for (const Track& track : board.TracksOf(net)) {
      text << track.layer << 'w';
      track.width ? text << *track.width : text << '?';
      text << board.PointsOf(track) << ' ';
    }
    for (const Via& via : board.ViasOf(net))
      text << board.viaPadstacks[via.padstack].name << '@' << Polygon{via.position} << ' ';
    for (const OpenConnection& open : net.open) text << "open" << Polygon{open.from, open.to} << ' ';
    for (const LayerLength& length : net.lengths) text << length.layer << '=' << length.length << ' ';
  }
  return text.str();
}

/// Every area with its holes: "SIGNAL_1(0 0)(1 0)(1 1)-(...)".
inline std::string Areas(const Board& board) {
  std::ostringstream text;
  for (const Net& net : board.nets) {
    for (const Area& area : net.areas) {
      text << net.name << ' ' << area.layer << area.outline;
      for (const Polygon& hole : area.holes) text << '-' << hole;
      text << '\n';
    }
  }
  return text.str();
}

}  // namespace kestrin::test
