#include "bench/yardsticks/plain_c.h"

namespace kestrin::bench::plain_c {
namespace {

struct Xrf {
  int number;
  Text name;
};
struct Ttt {
  double values[5];
};
struct Segment {
  double x, y, layer, width;
  Text padstack, value5;
};
/// A wire, an antenna or an incomplete connection.
struct Wire {
  double values[7];
  List<Segment> segments;
};
struct Guide {
  double values[6];
};
struct Net {
  Text name;
  List<Wire> wires, antennas, incompletes;
  List<Guide> guides;
};
struct Vertex {
  double x, y;
};
struct Tie {
  Text names[2], type;
  double values[2];
};
struct Area {
  Text names[2], type;
  double values[3];
  List<Vertex> vertices;
};
struct Island {
  int number;
  List<Vertex> vertices;
};
struct Fill {
  Text names[2], type, tail[3];
  double values[9];
  List<Vertex> vertices;
  List<Area> areas;
  List<Island> islands;
  List<Tie> ties;
};
struct Traces {
  Text units;
  double st[4];
  List<Xrf> xrfs;
  List<Ttt> ttts;
  List<Net> nets;
  List<Fill> fills;
};

/// The records to which the following lines belong.
struct Reader {
  Traces* traces;
  Net* net;
  Fill* fill;
  List<Segment>* segments;
  List<Vertex>* vertices;
};

/// Copies a text without the apostrophes around it.
void KeepUnquoted(Text& room, const char* text) {
  Keep(room, *text == '\'' ? text + 1 : text);
  const std::size_t length = strlen(room);
  if (length > 0 && room[length - 1] == '\'') room[length - 1] = '\0';
}

void Convert(double* numbers, char** values, int count) {
  for (int i = 0; i < count; ++i) numbers[i] = atof(values[i]);
}

void ReadVertex(Reader* reader, char** v) { *Append(reader->vertices) = {atof(v[1]), atof(v[2])}; }

void ReadSegment(Reader* reader, char** v) {
  Segment* segment = Append(reader->segments);
  segment->x = atof(v[1]);
  segment->y = atof(v[2]);
  segment->layer = atoi(v[3]);
  segment->width = -1.0;
  if (strspn(v[4], "0123456789") == strlen(v[4])) {
    segment->width = atof(v[4]);
  } else {
    Keep(segment->padstack, v[4]);
  }
  if (v[5] != nullptr) Keep(segment->value5, v[5]);
}

void AppendWire(Reader* reader, List<Wire>* list, char** v, int count) {
  Wire* wire = Append(list);
  Convert(wire->values, v + 1, count);
  reader->segments = &wire->segments;
}
void ReadWire(Reader* reader, char** v) { AppendWire(reader, &reader->net->wires, v, 5); }
void ReadAntenna(Reader* reader, char** v) { AppendWire(reader, &reader->net->antennas, v, 5); }
void ReadIncomplete(Reader* reader, char** v) { AppendWire(reader, &reader->net->incompletes, v, 7); }
void ReadGuide(Reader* reader, char** v) { Convert(Append(&reader->net->guides)->values, v + 1, 6); }

void ReadFill(Reader* reader, char** v) {
  Fill* fill = Append(&reader->traces->fills);
  for (int i = 0; i < 2; ++i) KeepUnquoted(fill->names[i], v[1 + i]);
  Keep(fill->type, v[3]);
  Convert(fill->values, v + 4, 9);
  for (int i = 0; i < 3; ++i) Keep(fill->tail[i], v[14 + i]);
  reader->fill = fill;
  reader->vertices = &fill->vertices;
}

void ReadArea(Reader* reader, char** v) {
  Area* area = Append(&reader->fill->areas);
  for (int i = 0; i < 2; ++i) KeepUnquoted(area->names[i], v[1 + i]);
  Keep(area->type, v[3]);
  Convert(area->values, v + 4, 3);
  reader->vertices = &area->vertices;
}

void ReadIsland(Reader* reader, char** v) {
  Island* island = Append(&reader->fill->islands);
  island->number = atoi(v[1]);
  reader->vertices = &island->vertices;
}

void ReadTie(Reader* reader, char** v) {
  Tie* tie = Append(&reader->fill->ties);
  for (int i = 0; i < 2; ++i) Keep(tie->names[i], reader->fill->names[i]);
  Convert(tie->values, v + 1, 2);
  Keep(tie->type, v[3]);
}

void ReadNet(Reader* reader, char** v) {
  if (strcmp(v[1], "NET") != 0) return;  // a comment
  reader->net = Append(&reader->traces->nets);
  KeepUnquoted(reader->net->name, v[2]);
}

void ReadXrf(Reader* reader, char** v) {
  Xrf* xrf = Append(&reader->traces->xrfs);
  xrf->number = atoi(v[1]);
  Keep(xrf->name, v[2]);
}

void ReadTtt(Reader* reader, char** v) { Convert(Append(&reader->traces->ttts)->values, v + 1, 5); }
void ReadUnits(Reader* reader, char** v) { Keep(reader->traces->units, v[1]); }
void ReadSt(Reader* reader, char** v) { Convert(reader->traces->st, v + 1, 4); }

constexpr struct Row {
  const char* code;
  int least;  // the number of values after the keyword
  void (*read)(Reader* reader, char** values);
} kRows[] = {
    // the most frequent come first
    {"VER", 2, ReadVertex}, {"SEG", 4, ReadSegment}, {"WIR", 5, ReadWire},  {"ISL", 1, ReadIsland},
    {"#", 2, ReadNet},      {"ANT", 5, ReadAntenna}, {"GUI", 6, ReadGuide}, {"INC", 7, ReadIncomplete},
    {"FIL", 16, ReadFill},  {"ARE", 6, ReadArea},    {"TTI", 3, ReadTie},   {"XRF", 2, ReadXrf},
    {"TTT", 5, ReadTtt},    {"UNITS", 1, ReadUnits}, {"ST", 4, ReadSt},
};

/// The values are followed by a null pointer.
void ReadLine(Reader* reader, char* line) {
  constexpr int kMostValues = 32;
  char* values[kMostValues + 1];
  int count = 0;
  for (char* v = strtok(line, " \r\n"); v != nullptr && count < kMostValues; v = strtok(nullptr, " \r\n")) {
    values[count++] = v;
  }
  values[count] = nullptr;
  for (const Row& row : kRows) {
    if (count == 0 || strcmp(values[0], row.code) != 0) continue;
    if (count > row.least) row.read(reader, values);
    return;
  }
}

struct TracesTally : Tally {
  template <class Record>
  void Add(const List<Record>& list) {
    for (const Record* record : list) Add(*record);
  }
  void Add(const Xrf& xrf) { AddRecord({{static_cast<double>(xrf.number)}}); }
  void Add(const Ttt& ttt) { AddRecord(ttt.values); }
  void Add(const Segment& segment) { AddRecord({{segment.x, segment.y, segment.layer, segment.width}}); }
  void Add(const Wire& wire) {
    AddRecord(wire.values);
    Add(wire.segments);
  }
  void Add(const Guide& guide) { AddRecord(guide.values); }
  void Add(const Net& net) {
    AddRecord({});
    for (const List<Wire>& wires : {net.wires, net.incompletes, net.antennas}) Add(wires);
    Add(net.guides);
  }
  void Add(const Vertex& vertex) { AddRecord({{vertex.x, vertex.y}}); }
  void Add(const Tie& tie) { AddRecord(tie.values); }
  void Add(const Area& area) {
    AddRecord(area.values);
    Add(area.vertices);
  }
  void Add(const Island& island) {
    AddRecord({{static_cast<double>(island.number)}});
    Add(island.vertices);
  }
  void Add(const Fill& fill) {
    AddRecord(fill.values);
    Add(fill.vertices);
    Add(fill.areas);
    Add(fill.islands);
    Add(fill.ties);
  }
  void Add(const Traces& traces) {
    AddRecord(traces.st);
    Add(traces.xrfs);
    Add(traces.ttts);
    Add(traces.nets);
    Add(traces.fills);
  }
};

struct BuiltTraces final : Built {
  [[nodiscard]] Tally Count() const override {
    TracesTally tally;
    tally.Add(traces);
    return tally;
  }

  Traces traces{};
};

}  // namespace

std::unique_ptr<Built> ReadTraces(const Input& input) {
  // Records without an owner are added to these, which are not counted.
  Net net{};
  Fill fill{};
  List<Segment> segments{};
  auto built = std::make_unique<BuiltTraces>();
  Reader reader{&built->traces, &net, &fill, &segments, &fill.vertices};
  ForEachLine(input.path.c_str(), [&](char* line) { ReadLine(&reader, line); });
  return built;
}

}  // namespace kestrin::bench::plain_c
