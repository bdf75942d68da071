#include <cctype>

#include "bench/yardsticks/plain_c.h"

namespace kestrin::bench::plain_c {
namespace {

struct Numbers {
  [[nodiscard]] const double* begin() const { return items; }
  [[nodiscard]] const double* end() const { return items + count; }

  double* items;
  std::size_t count, capacity;
};

void Append(Numbers* numbers, double number) {
  if (numbers->count == numbers->capacity) {
    numbers->capacity = numbers->capacity == 0 ? 8 : 2 * numbers->capacity;
    numbers->items = static_cast<double*>(realloc(numbers->items, numbers->capacity * sizeof(double)));
  }
  numbers->items[numbers->count++] = number;
}

enum DrawObjectType { kPath, kPolygon, kArc, kCircle };

struct DrawObject {
  DrawObjectType type;
  Text layer;
  double width;
  double points[6];  // arcs: three points; circles: x, y and the size
  int mode;
  Numbers coordinates;
};
struct GeometryText {
  Text layer, text, justification, font;
  double position[3], values[3];
};
struct Outline {
  Text name;
  Numbers coordinates;
};
struct PinDefinition {
  Text name;
  double x, y;
};
struct Layer {
  Text definition;
  Text values[8];
  int valueCount;
};
/// A board, a component or a pin, each of which uses some of the members; or a stack-up, which has a name and
/// units only.
struct Geometry {
  Text name, units;
  List<DrawObject> drawObjects;
  List<GeometryText> texts;
  int routingLayers;
  Numbers placementOutline, routingOutline;
  List<Outline> keepouts, placementOutlines;
  double height, drillSize;
  Text layoutType;
  List<PinDefinition> pinDefinitions;
};
struct Model {
  Geometry board, stackup;
  List<Layer> layers;
  List<Geometry> components, pins;
};

constexpr int kMostFields = 4096;

struct Reader {
  Model* model;
  Geometry* geometry;
  Numbers pending;
  char* fields[kMostFields];  // of the current line
  int count;
};

/// Cuts arguments at commas, in place, and removes blanks and quotes. Commas between quotes do not separate.
void CutArguments(Reader* reader, char* text) {
  reader->count = 0;
  while (text != nullptr && *text != '\0' && reader->count < kMostFields) {
    while (*text == ' ') ++text;
    char* end = nullptr;
    if (*text == '"') {
      reader->fields[reader->count++] = ++text;
      end = strchr(text, '"');
      if (end == nullptr) return;
      *end++ = '\0';
      end = strchr(end, ',');
    } else {
      reader->fields[reader->count++] = text;
      end = strchr(text, ',');
      if (end != nullptr) *end = '\0';
    }
    text = end == nullptr ? nullptr : end + 1;
  }
}

double Bracketed(const char* field) { return atof(*field == '[' ? field + 1 : field); }

/// Reads the numbers between brackets, or the pending ones if there are no brackets.
void ReadPoints(Reader* reader, int first, Numbers* numbers) {
  for (int i = first; i < reader->count; ++i) Append(numbers, Bracketed(reader->fields[i]));
  if (first < reader->count) return;
  for (const double number : reader->pending) Append(numbers, number);
  reader->pending.count = 0;
}

void ReadOutline(Reader* reader, List<Outline>* list) {
  Outline* outline = Append(list);
  Keep(outline->name, reader->fields[1]);
  ReadPoints(reader, 2, &outline->coordinates);
}

void ReadPinDefinition(Reader* reader) {
  PinDefinition* pin = Append(&reader->geometry->pinDefinitions);
  Keep(pin->name, reader->fields[1]);
  pin->x = Bracketed(reader->fields[2]);
  pin->y = atof(reader->fields[3]);
}

void ReadLayer(Reader* reader) {
  Layer* layer = Append(&reader->model->layers);
  Keep(layer->definition, reader->fields[0]);
  for (int i = 1; i < reader->count && i <= 8; ++i)
    Keep(layer->values[layer->valueCount++], reader->fields[i]);
}

bool Is(const char* word, const char* name) { return strcmp(word, name) == 0; }

void ReadAttribute(Reader* reader) {
  Geometry* geometry = reader->geometry;
  const char* name = reader->fields[0];
  if (Is(name, "COMPONENT_PIN_DEFINITION") && reader->count >= 4) return ReadPinDefinition(reader);
  if (Is(name, "COMPONENT_HEIGHT")) geometry->height = Bracketed(reader->fields[1]);
  if (Is(name, "COMPONENT_LAYOUT_TYPE")) return Keep(geometry->layoutType, reader->fields[1]);
  if (Is(name, "COMPONENT_PLACEMENT_OUTLINE")) return ReadOutline(reader, &geometry->placementOutlines);
  if (Is(name, "TERMINAL_DRILL_SIZE")) geometry->drillSize = Bracketed(reader->fields[1]);
  if (Is(name, "ROUTING_KEEPOUT")) return ReadOutline(reader, &geometry->keepouts);
  if (Is(name, "BOARD_ROUTING_LAYERS")) geometry->routingLayers = atoi(reader->fields[1] + 1);
  if (Is(name, "BOARD_PLACEMENT_OUTLINE")) return ReadPoints(reader, 1, &geometry->placementOutline);
  if (Is(name, "BOARD_ROUTING_OUTLINE")) return ReadPoints(reader, 1, &geometry->routingOutline);
  if (strstr(name, "LAYER_DEFINITION") != nullptr) return ReadLayer(reader);
}

DrawObject* AddDrawObject(Reader* reader, DrawObjectType type) {
  DrawObject* object = Append(&reader->geometry->drawObjects);
  object->type = type;
  Keep(object->layer, reader->fields[0]);
  return object;
}

void ReadPath(Reader* reader) {
  DrawObject* path = AddDrawObject(reader, kPath);
  path->width = atof(reader->fields[1]);
  ReadPoints(reader, 2, &path->coordinates);
}

void ReadPolygon(Reader* reader) { ReadPoints(reader, 1, &AddDrawObject(reader, kPolygon)->coordinates); }

void ReadCircle(Reader* reader) {
  DrawObject* circle = AddDrawObject(reader, kCircle);
  for (int i = 0; i < 3 && i + 1 < reader->count; ++i) circle->points[i] = atof(reader->fields[i + 1]);
}

void ReadArc(Reader* reader) {
  if (reader->count < 9) return;
  DrawObject* arc = AddDrawObject(reader, kArc);
  for (int i = 0; i < 6; ++i) arc->points[i] = atof(reader->fields[i + 1]);
  arc->width = atof(reader->fields[7]);
  arc->mode = Is(reader->fields[8], "@center") ? 2 : 1;
}

void ReadText(Reader* reader) {
  if (reader->count < 10) return;
  GeometryText* text = Append(&reader->geometry->texts);
  Keep(text->layer, reader->fields[0]);
  Keep(text->text, reader->fields[1]);
  Keep(text->justification, reader->fields[5]);
  for (int i = 0; i < 3; ++i) text->position[i] = atof(reader->fields[2 + i]);
  for (int i = 0; i < 3; ++i) text->values[i] = atof(reader->fields[6 + i]);
  Keep(text->font, reader->fields[9]);
}

void ReadPage(Reader* reader) {
  char* units = reader->fields[reader->count - 1] + 1;
  for (char* c = units; *c != '\0'; ++c) *c = static_cast<char>(toupper(static_cast<unsigned char>(*c)));
  Keep(reader->geometry->units, units);
}

void Open(Reader* reader, Geometry* geometry) {
  reader->geometry = geometry;
  Keep(geometry->name, reader->fields[0]);
}

/// The most frequent commands come first.
void ReadLine(Reader* reader, char* line) {
  char* arguments = strchr(line, '(');
  char* end = strrchr(line, ')');
  if (line[0] != '$' || arguments == nullptr || end == nullptr) return;
  *arguments++ = '\0';
  *end = '\0';
  CutArguments(reader, arguments);
  if (reader->count == 0) return;
  if (Is(line, "$$attribute")) return ReadAttribute(reader);
  if (Is(line, "$$create_component")) return Open(reader, Append(&reader->model->components));
  if (Is(line, "$$create_pin")) return Open(reader, Append(&reader->model->pins));
  if (Is(line, "$$create_board")) return Open(reader, &reader->model->board);
  if (Is(line, "$$create_stackup")) return Open(reader, &reader->model->stackup);
  if (Is(line, "$$page")) return ReadPage(reader);
  if (Is(line, "$$initial")) reader->pending.count = 0;
  if (Is(line, "$$initial") || Is(line, "$$terminal")) return ReadPoints(reader, 0, &reader->pending);
  if (Is(line, "$$path")) return ReadPath(reader);
  if (Is(line, "$$polygon")) return ReadPolygon(reader);
  if (Is(line, "$$circle")) return ReadCircle(reader);
  if (Is(line, "$$arc")) return ReadArc(reader);
  if (Is(line, "$$text")) return ReadText(reader);
}

struct GeometryTally : Tally {
  void Add(const Numbers& numbers) {
    for (const double number : numbers) AddNumber(number);
  }
  template <class Record>
  void Add(const List<Record>& list) {
    for (const Record* record : list) Add(*record);
  }
  void Add(const DrawObject& object) {
    AddRecord(object.points);
    AddNumber(object.width);
    AddNumber(object.mode);
    Add(object.coordinates);
  }
  void Add(const GeometryText& text) {
    AddRecord(text.position);
    for (const double value : text.values) AddNumber(value);
  }
  void Add(const Outline& outline) {
    AddRecord({});
    Add(outline.coordinates);
  }
  void Add(const PinDefinition& pin) { AddRecord({{pin.x, pin.y}}); }
  void Add(const Layer& /*layer*/) { AddRecord({}); }
  void Add(const Geometry& geometry) {
    AddRecord({{static_cast<double>(geometry.routingLayers), geometry.height, geometry.drillSize}});
    Add(geometry.drawObjects);
    Add(geometry.texts);
    Add(geometry.placementOutline);
    Add(geometry.routingOutline);
    Add(geometry.keepouts);
    Add(geometry.placementOutlines);
    Add(geometry.pinDefinitions);
  }
};

struct BuiltGeometry final : Built {
  [[nodiscard]] Tally Count() const override {
    GeometryTally tally;
    tally.AddRecord({});
    tally.Add(model.board);
    tally.Add(model.stackup);
    tally.Add(model.layers);
    tally.Add(model.components);
    tally.Add(model.pins);
    for (std::size_t i = 0; i < model.pins.count; ++i)
      tally.AddNumber(1);  // thru-hole unless the file says so
    return tally;
  }

  Model model{};
};

}  // namespace

std::unique_ptr<Built> ReadGeometry(const Input& input) {
  static Reader reader;
  auto built = std::make_unique<BuiltGeometry>();
  reader = {};
  reader.model = &built->model;
  reader.geometry = &built->model.board;
  ForEachLine(input.path.c_str(), [&](char* line) { ReadLine(&reader, line); });
  return built;
}

}  // namespace kestrin::bench::plain_c
