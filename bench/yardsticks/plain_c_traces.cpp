#include "bench/yardsticks/plain_c.h"

namespace kestrin::bench::plain_c {
namespace {

struct Xrf {
  int value1;
  Text value2;
};
struct Ttt {
  int value1;
  double value2;
  int value3, value4, value5;
};
struct Segment {
  double x, y;
  int value3;
  double value4;
  Text value4Text, value5;
};
struct Wire {
  int value1;
  double value2, value3, value4, value5;
  List<Segment> segments;
};
struct Incomplete {
  int value1;
  double value2, value3;
  int value4;
  double value5, value6;
  int value7;
  List<Segment> segments;
};
struct Guide {
  double value1, value2;
  int value3;
  double value4, value5;
  int value6;
};
struct Net {
  Text name;
  List<Wire> wires, antennas;
  List<Incomplete> incompletes;
  List<Guide> guides;
};
struct Vertex {
  double x, y;
};
struct Tie {
  Text name1, name2;
  double value1, value2;
  Text value3;
};
struct Area {
  Text name1, name2, value3;
  int value4;
  double value5;
  int value6;
  List<Vertex> vertices;
};
struct Island {
  int value1;
  List<Vertex> vertices;
};
struct Fill {
  Text name1, name2, value3;
  int value4, value5, value6, value7, value8;
  double value9;
  int value10, value11, value12;
  Text tail1, tail2, tail3;
  List<Vertex> vertices;
  List<Area> areas;
  List<Island> islands;
  List<Tie> ties;
};

struct Traces {
  Text units;
  double st1, st2;
  int st3, st4;
  List<Xrf> xrfs;
  List<Ttt> ttts;
  List<Net> nets;
  List<Fill> fills;
};

constexpr int kMostValues = 32;

/// Where the records that follow belong.
struct Reader {
  Traces* traces;
  Net* net;
  Fill* fill;
  List<Segment>* segments;
  List<Vertex>* vertices;
};

void ReadVertex(Reader* reader, char** values) {
  Vertex* vertex = Append(reader->vertices);
  vertex->x = atof(values[1]);
  vertex->y = atof(values[2]);
}

void ReadSegment(Reader* reader, char** values, int count) {
  Segment* segment = Append(reader->segments);
  segment->x = atof(values[1]);
  segment->y = atof(values[2]);
  segment->value3 = atoi(values[3]);
  segment->value4 = -1.0;
  if (strspn(values[4], "0123456789") == strlen(values[4])) {
    segment->value4 = atof(values[4]);
  } else {
    Keep(segment->value4Text, values[4]);
  }
  if (count >= 5) Keep(segment->value5, values[5]);
}

void ReadWire(Reader* reader, List<Wire>* list, char** values) {
  Wire* wire = Append(list);
  wire->value1 = atoi(values[1]);
  wire->value2 = atof(values[2]);
  wire->value3 = atof(values[3]);
  wire->value4 = atof(values[4]);
  wire->value5 = atof(values[5]);
  reader->segments = &wire->segments;
}

void ReadIncomplete(Reader* reader, char** values) {
  Incomplete* incomplete = Append(&reader->net->incompletes);
  incomplete->value1 = atoi(values[1]);
  incomplete->value2 = atof(values[2]);
  incomplete->value3 = atof(values[3]);
  incomplete->value4 = atoi(values[4]);
  incomplete->value5 = atof(values[5]);
  incomplete->value6 = atof(values[6]);
  incomplete->value7 = static_cast<int>(atof(values[7]));
  reader->segments = &incomplete->segments;
}

void ReadGuide(Reader* reader, char** values) {
  Guide* guide = Append(&reader->net->guides);
  guide->value1 = atof(values[1]);
  guide->value2 = atof(values[2]);
  guide->value3 = atoi(values[3]);
  guide->value4 = atof(values[4]);
  guide->value5 = atof(values[5]);
  guide->value6 = atoi(values[6]);
}

void ReadFill(Reader* reader, char** values) {
  Fill* fill = Append(&reader->traces->fills);
  KeepUnquoted(fill->name1, values[1], '\'');
  KeepUnquoted(fill->name2, values[2], '\'');
  Keep(fill->value3, values[3]);
  fill->value4 = atoi(values[4]);
  fill->value5 = atoi(values[5]);
  fill->value6 = atoi(values[6]);
  fill->value7 = atoi(values[7]);
  fill->value8 = atoi(values[8]);
  fill->value9 = atof(values[9]);
  fill->value10 = atoi(values[10]);
  fill->value11 = atoi(values[11]);
  fill->value12 = atoi(values[12]);
  Keep(fill->tail1, values[14]);
  Keep(fill->tail2, values[15]);
  Keep(fill->tail3, values[16]);
  reader->fill = fill;
  reader->vertices = &fill->vertices;
}

void ReadArea(Reader* reader, char** values) {
  Area* area = Append(&reader->fill->areas);
  KeepUnquoted(area->name1, values[1], '\'');
  KeepUnquoted(area->name2, values[2], '\'');
  Keep(area->value3, values[3]);
  area->value4 = atoi(values[4]);
  area->value5 = atof(values[5]);
  area->value6 = atoi(values[6]);
  reader->vertices = &area->vertices;
}

void ReadIsland(Reader* reader, char** values) {
  Island* island = Append(&reader->fill->islands);
  island->value1 = atoi(values[1]);
  reader->vertices = &island->vertices;
}

void ReadTie(Reader* reader, char** values) {
  Tie* tie = Append(&reader->fill->ties);
  Keep(tie->name1, reader->fill->name1);
  Keep(tie->name2, reader->fill->name2);
  tie->value1 = atof(values[1]);
  tie->value2 = atof(values[2]);
  Keep(tie->value3, values[3]);
}

void ReadNet(Reader* reader, char** values) {
  reader->net = Append(&reader->traces->nets);
  KeepUnquoted(reader->net->name, values[2], '\'');
  reader->fill = nullptr;
}

void ReadXrf(Reader* reader, char** values) {
  Xrf* xrf = Append(&reader->traces->xrfs);
  xrf->value1 = atoi(values[1]);
  Keep(xrf->value2, values[2]);
}

void ReadTtt(Reader* reader, char** values) {
  Ttt* ttt = Append(&reader->traces->ttts);
  ttt->value1 = atoi(values[1]);
  ttt->value2 = atof(values[2]);
  ttt->value3 = atoi(values[3]);
  ttt->value4 = atoi(values[4]);
  ttt->value5 = atoi(values[5]);
}

void ReadSt(Traces* traces, char** values) {
  traces->st1 = atof(values[1]);
  traces->st2 = atof(values[2]);
  traces->st3 = atoi(values[3]);
  traces->st4 = atoi(values[4]);
}

bool Is(const char* code, const char* name) { return strcmp(code, name) == 0; }

/// Counts are those behind the code. The chain begins with what is most frequent.
void ReadLine(Reader* reader, char* line) {
  char* values[kMostValues];
  const int count = Cut(line, " \r\n", values, kMostValues) - 1;
  if (count < 1) return;
  const char* code = values[0];
  if (Is(code, "VER")) {
    if (count >= 2 && reader->vertices != nullptr) ReadVertex(reader, values);
  } else if (Is(code, "SEG")) {
    if (count >= 4 && reader->segments != nullptr) ReadSegment(reader, values, count);
  } else if (Is(code, "WIR")) {
    if (count >= 5 && reader->net != nullptr) ReadWire(reader, &reader->net->wires, values);
  } else if (Is(code, "ISL")) {
    if (reader->fill != nullptr) ReadIsland(reader, values);
  } else if (Is(code, "#")) {
    if (count >= 2 && Is(values[1], "NET")) ReadNet(reader, values);
  } else if (Is(code, "INC")) {
    if (count == 7 && reader->net != nullptr) ReadIncomplete(reader, values);
  } else if (Is(code, "ANT")) {
    if (count == 5 && reader->net != nullptr) ReadWire(reader, &reader->net->antennas, values);
  } else if (Is(code, "GUI")) {
    if (count >= 6 && reader->net != nullptr) ReadGuide(reader, values);
  } else if (Is(code, "FIL")) {
    if (count == 16) ReadFill(reader, values);
  } else if (Is(code, "ARE")) {
    if (count == 6 && reader->fill != nullptr) ReadArea(reader, values);
  } else if (Is(code, "TTI")) {
    if (count == 3 && reader->fill != nullptr) ReadTie(reader, values);
  } else if (Is(code, "XRF")) {
    if (count >= 2) ReadXrf(reader, values);
  } else if (Is(code, "TTT")) {
    if (count >= 5) ReadTtt(reader, values);
  } else if (Is(code, "UNITS")) {
    Keep(reader->traces->units, values[1]);
  } else if (Is(code, "ST")) {
    if (count == 4) ReadSt(reader->traces, values);
  }
}

void Add(Tally* tally, const List<Segment>& segments) {
  tally->records += 1 + segments.count;
  for (std::size_t i = 0; i < segments.count; ++i) {
    const Segment* segment = segments.items[i];
    tally->coordinates += segment->x;
    tally->coordinates += segment->y;
    tally->characters += strlen(segment->value4Text) + strlen(segment->value5);
  }
}

void Add(Tally* tally, const List<Vertex>& vertices) {
  tally->records += 1 + vertices.count;
  for (std::size_t i = 0; i < vertices.count; ++i) {
    tally->coordinates += vertices.items[i]->x;
    tally->coordinates += vertices.items[i]->y;
  }
}

template <class RECORD, class MEMBER>
void AddAll(Tally* tally, const List<RECORD>& list, MEMBER member) {
  for (std::size_t i = 0; i < list.count; ++i) Add(tally, list.items[i]->*member);
}

struct BuiltTraces final : Built {
  [[nodiscard]] Tally Count() const override {
    Tally tally;
    tally.records = traces.xrfs.count + traces.ttts.count + traces.nets.count;
    for (std::size_t i = 0; i < traces.nets.count; ++i) {
      const Net* net = traces.nets.items[i];
      tally.characters += strlen(net->name);
      tally.records += net->guides.count;
      AddAll(&tally, net->wires, &Wire::segments);
      AddAll(&tally, net->incompletes, &Incomplete::segments);
      AddAll(&tally, net->antennas, &Wire::segments);
    }
    for (std::size_t i = 0; i < traces.fills.count; ++i) {
      const Fill* fill = traces.fills.items[i];
      tally.records += fill->ties.count;
      Add(&tally, fill->vertices);
      AddAll(&tally, fill->areas, &Area::vertices);
      AddAll(&tally, fill->islands, &Island::vertices);
    }
    return tally;
  }

  Traces traces{};
};

}  // namespace

std::unique_ptr<Built> ReadTraces(const Input& input) {
  auto built = std::make_unique<BuiltTraces>();
  Reader reader{&built->traces, nullptr, nullptr, nullptr, nullptr};
  ForEachLine(input.path.c_str(), [&](char* line) { ReadLine(&reader, line); });
  return built;
}

}  // namespace kestrin::bench::plain_c
