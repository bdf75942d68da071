#include <algorithm>
#include <cctype>

#include "bench/yardsticks/plain_cpp.h"

namespace kestrin::bench::plain_cpp {
namespace {

using Values = std::vector<std::string>;

struct Xrf {
  int value1 = 0;
  std::string value2;
};
struct Ttt {
  int value1 = 0;
  double value2 = 0.0;
  int value3 = 0, value4 = 0, value5 = 0;
};
struct Segment {
  double x = 0.0, y = 0.0;
  int value3 = 0;
  double value4 = -1.0;
  std::string value4Text, value5;
};
struct Wire {
  int value1 = 0;
  double value2 = 0.0, value3 = 0.0, value4 = 0.0, value5 = 0.0;
  List<Segment> segments;
};
struct Incomplete {
  int value1 = 0;
  double value2 = 0.0, value3 = 0.0;
  int value4 = 0;
  double value5 = 0.0, value6 = 0.0;
  int value7 = 0;
  List<Segment> segments;
};
struct Guide {
  double value1 = 0.0, value2 = 0.0;
  int value3 = 0;
  double value4 = 0.0, value5 = 0.0;
  int value6 = 0;
};
struct Net {
  std::string name;
  List<Wire> wires, antennas;
  List<Incomplete> incompletes;
  List<Guide> guides;
};
struct Vertex {
  double x = 0.0, y = 0.0;
};
struct Tie {
  std::string name1, name2;
  double value1 = 0.0, value2 = 0.0;
  std::string value3;
};
struct Area {
  std::string name1, name2, value3;
  int value4 = 0;
  double value5 = 0.0;
  int value6 = 0;
  List<Vertex> vertices;
};
struct Island {
  int value1 = 0;
  List<Vertex> vertices;
};
struct Fill {
  std::string name1, name2, value3;
  int value4 = 0, value5 = 0, value6 = 0, value7 = 0, value8 = 0;
  double value9 = 0.0;
  int value10 = 0, value11 = 0, value12 = 0;
  std::string tail1, tail2, tail3;
  List<Vertex> vertices;
  List<Area> areas;
  List<Island> islands;
  List<Tie> ties;
};

/// The model, and its reader.
class Traces final : public Built {
 public:
  /// The chain begins with what is most frequent.
  void ReadLine(const std::string& line) {
    const Values values = Words(line);
    if (values.size() < 2) return;
    const std::string& code = values[0];
    const std::size_t count = values.size() - 1;
    if (code == "VER") {
      if (count >= 2 && vertices_ != nullptr) ReadVertex(values);
    } else if (code == "SEG") {
      if (count >= 4 && segments_ != nullptr) ReadSegment(values);
    } else if (code == "WIR") {
      if (count >= 5 && net_ != nullptr) ReadWire(net_->wires, values);
    } else if (code == "ISL") {
      if (fill_ != nullptr) ReadIsland(values);
    } else if (code == "#") {
      if (count >= 2 && values[1] == "NET") ReadNet(values);
    } else if (code == "INC") {
      if (count == 7 && net_ != nullptr) ReadIncomplete(values);
    } else if (code == "ANT") {
      if (count == 5 && net_ != nullptr) ReadWire(net_->antennas, values);
    } else if (code == "GUI") {
      if (count >= 6 && net_ != nullptr) ReadGuide(values);
    } else if (code == "FIL") {
      if (count == 16) ReadFill(values);
    } else if (code == "ARE") {
      if (count == 6 && fill_ != nullptr) ReadArea(values);
    } else if (code == "TTI") {
      if (count == 3 && fill_ != nullptr) ReadTie(values);
    } else if (code == "XRF") {
      if (count >= 2) ReadXrf(values);
    } else if (code == "TTT") {
      if (count >= 5) ReadTtt(values);
    } else if (code == "UNITS") {
      units_ = values[1];
    } else if (code == "ST") {
      if (count == 4) ReadSt(values);
    }
  }

  [[nodiscard]] Tally Count() const override {
    Tally tally;
    tally.records = xrfs_.size() + ttts_.size() + nets_.size();
    for (const auto& net : nets_) {
      tally.characters += net->name.size();
      tally.records += net->guides.size();
      for (const auto& wire : net->wires) Add(tally, wire->segments);
      for (const auto& incomplete : net->incompletes) Add(tally, incomplete->segments);
      for (const auto& antenna : net->antennas) Add(tally, antenna->segments);
    }
    for (const auto& fill : fills_) {
      tally.records += fill->ties.size();
      Add(tally, fill->vertices);
      for (const auto& area : fill->areas) Add(tally, area->vertices);
      for (const auto& island : fill->islands) Add(tally, island->vertices);
    }
    return tally;
  }

 private:
  void ReadVertex(const Values& values) {
    Vertex& vertex = Append(*vertices_);
    vertex.x = std::stod(values[1]);
    vertex.y = std::stod(values[2]);
  }
  void ReadSegment(const Values& values) {
    Segment& segment = Append(*segments_);
    segment.x = std::stod(values[1]);
    segment.y = std::stod(values[2]);
    segment.value3 = std::stoi(values[3]);
    if (std::all_of(values[4].begin(), values[4].end(), [](unsigned char c) { return std::isdigit(c); })) {
      segment.value4 = std::stod(values[4]);
    } else {
      segment.value4Text = values[4];
    }
    if (values.size() > 5) segment.value5 = values[5];
  }
  void ReadWire(List<Wire>& list, const Values& values) {
    Wire& wire = Append(list);
    wire.value1 = std::stoi(values[1]);
    wire.value2 = std::stod(values[2]);
    wire.value3 = std::stod(values[3]);
    wire.value4 = std::stod(values[4]);
    wire.value5 = std::stod(values[5]);
    segments_ = &wire.segments;
  }
  void ReadIncomplete(const Values& values) {
    Incomplete& incomplete = Append(net_->incompletes);
    incomplete.value1 = std::stoi(values[1]);
    incomplete.value2 = std::stod(values[2]);
    incomplete.value3 = std::stod(values[3]);
    incomplete.value4 = std::stoi(values[4]);
    incomplete.value5 = std::stod(values[5]);
    incomplete.value6 = std::stod(values[6]);
    incomplete.value7 = static_cast<int>(std::stod(values[7]));
    segments_ = &incomplete.segments;
  }
  void ReadGuide(const Values& values) {
    Guide& guide = Append(net_->guides);
    guide.value1 = std::stod(values[1]);
    guide.value2 = std::stod(values[2]);
    guide.value3 = std::stoi(values[3]);
    guide.value4 = std::stod(values[4]);
    guide.value5 = std::stod(values[5]);
    guide.value6 = std::stoi(values[6]);
  }
  void ReadFill(const Values& values) {
    Fill& fill = Append(fills_);
    fill.name1 = Unquoted(values[1], '\'');
    fill.name2 = Unquoted(values[2], '\'');
    fill.value3 = values[3];
    fill.value4 = std::stoi(values[4]);
    fill.value5 = std::stoi(values[5]);
    fill.value6 = std::stoi(values[6]);
    fill.value7 = std::stoi(values[7]);
    fill.value8 = std::stoi(values[8]);
    fill.value9 = std::stod(values[9]);
    fill.value10 = std::stoi(values[10]);
    fill.value11 = std::stoi(values[11]);
    fill.value12 = std::stoi(values[12]);
    fill.tail1 = values[14];
    fill.tail2 = values[15];
    fill.tail3 = values[16];
    fill_ = &fill;
    vertices_ = &fill.vertices;
  }
  void ReadArea(const Values& values) {
    Area& area = Append(fill_->areas);
    area.name1 = Unquoted(values[1], '\'');
    area.name2 = Unquoted(values[2], '\'');
    area.value3 = values[3];
    area.value4 = std::stoi(values[4]);
    area.value5 = std::stod(values[5]);
    area.value6 = std::stoi(values[6]);
    vertices_ = &area.vertices;
  }
  void ReadIsland(const Values& values) {
    Island& island = Append(fill_->islands);
    island.value1 = std::stoi(values[1]);
    vertices_ = &island.vertices;
  }
  void ReadTie(const Values& values) {
    Tie& tie = Append(fill_->ties);
    tie.name1 = fill_->name1;
    tie.name2 = fill_->name2;
    tie.value1 = std::stod(values[1]);
    tie.value2 = std::stod(values[2]);
    tie.value3 = values[3];
  }
  void ReadNet(const Values& values) {
    net_ = &Append(nets_);
    net_->name = Unquoted(values[2], '\'');
    fill_ = nullptr;
  }
  void ReadXrf(const Values& values) {
    Xrf& xrf = Append(xrfs_);
    xrf.value1 = std::stoi(values[1]);
    xrf.value2 = values[2];
  }
  void ReadTtt(const Values& values) {
    Ttt& ttt = Append(ttts_);
    ttt.value1 = std::stoi(values[1]);
    ttt.value2 = std::stod(values[2]);
    ttt.value3 = std::stoi(values[3]);
    ttt.value4 = std::stoi(values[4]);
    ttt.value5 = std::stoi(values[5]);
  }
  void ReadSt(const Values& values) {
    st1_ = std::stod(values[1]);
    st2_ = std::stod(values[2]);
    st3_ = std::stoi(values[3]);
    st4_ = std::stoi(values[4]);
  }

  static void Add(Tally& tally, const List<Segment>& segments) {
    tally.records += 1 + segments.size();
    for (const auto& segment : segments) {
      tally.coordinates += segment->x;
      tally.coordinates += segment->y;
      tally.characters += segment->value4Text.size() + segment->value5.size();
    }
  }
  static void Add(Tally& tally, const List<Vertex>& vertices) {
    tally.records += 1 + vertices.size();
    for (const auto& vertex : vertices) {
      tally.coordinates += vertex->x;
      tally.coordinates += vertex->y;
    }
  }

  std::string units_;
  double st1_ = 0.0, st2_ = 0.0;
  int st3_ = 0, st4_ = 0;
  List<Xrf> xrfs_;
  List<Ttt> ttts_;
  List<Net> nets_;
  List<Fill> fills_;

  // Where the records that follow belong.
  Net* net_ = nullptr;
  Fill* fill_ = nullptr;
  List<Segment>* segments_ = nullptr;
  List<Vertex>* vertices_ = nullptr;
};

}  // namespace

std::unique_ptr<Built> ReadTraces(const Input& input) {
  auto traces = std::make_unique<Traces>();
  ForEachLine(input.path, [&](const std::string& line) { traces->ReadLine(line); });
  return traces;
}

}  // namespace kestrin::bench::plain_cpp
