#include "bench/yardsticks/plain_c.h"

namespace kestrin::bench::plain_c {
namespace {

struct Panel {
  Text boardName;
  double value4, value5;
  int value6, value7, value8;
};
struct Pin {
  Text reference, pin;
};
struct Net {
  Text name;
  List<Pin> pins;
};
struct Comment {
  Text name, value;
};
struct ReferenceLocation {
  double value1, value2;
  int value3;
  Text value4;
  double value5, value6, value7;
  Text value8, value9;
};
struct Component {
  Text value1, value2, value3, value4;
  double value5, value6;
  int value7, value8;
  Text referenceLocationFirst;
  List<ReferenceLocation> referenceLocations;
  List<Comment> comments;
};
struct Model {
  Text units;
  double boardValue3, boardValue4;
  List<Panel> panels;
  List<Net> nets;
  List<Component> components;
};

constexpr int kMostValues = 32;

struct Reader {
  Model* model;
  Net* net;
  Component* component;
};

void ReadPanel(Reader* reader, char** values) {
  Panel* panel = Append(&reader->model->panels);
  Keep(panel->boardName, values[1]);
  panel->value4 = atof(values[3]);
  panel->value5 = atof(values[4]);
  panel->value6 = atoi(values[5]);
  panel->value7 = atoi(values[6]);
  panel->value8 = atoi(values[7]);
}

double BehindColon(const char* value) {
  const char* colon = strrchr(value, ':');
  return atof(colon == nullptr ? value : colon + 1);
}

void ReadNet(Reader* reader, char** values) {
  reader->net = Append(&reader->model->nets);
  KeepUnquoted(reader->net->name, values[0], '\'');
}

void ReadPin(Reader* reader, char** values) {
  Pin* pin = Append(&reader->net->pins);
  char* hyphen = strchr(values[0], '-');
  if (hyphen == nullptr) {
    Keep(pin->pin, values[0]);
    return;
  }
  *hyphen = '\0';
  Keep(pin->reference, values[0]);
  Keep(pin->pin, hyphen + 1);
}

void ReadComponent(Reader* reader, char** values) {
  Component* component = Append(&reader->model->components);
  Keep(component->value1, values[0]);
  Keep(component->value2, values[1]);
  Keep(component->value3, values[2]);
  Keep(component->value4, values[3]);
  component->value5 = atof(values[4]);
  component->value6 = atof(values[5]);
  component->value7 = atoi(values[6]);
  component->value8 = atoi(values[7]);
  reader->component = component;
}

void ReadReferenceLocation(Component* component, char* text) {
  char* values[kMostValues];
  const int count = Cut(text, ",", values, kMostValues);
  ReferenceLocation* location = Append(&component->referenceLocations);
  if (count < 11) return;
  Keep(component->referenceLocationFirst, values[0]);
  location->value1 = atof(values[1]);
  location->value2 = atof(values[2]);
  location->value3 = atoi(values[3]);
  Keep(location->value4, values[4]);
  location->value5 = atof(values[5]);
  location->value6 = atof(values[6]);
  location->value7 = atof(values[7]);
  Keep(location->value8, values[8]);
  Keep(location->value9, values[10]);
}

/// Groups of a name and a value between quotes: (NAME,"value").
void ReadProperties(Reader* reader, char* text) {
  while ((text = strchr(text, '(')) != nullptr) {
    char* name = text + 1;
    char* comma = strchr(name, ',');
    char* value = strchr(name, '"');
    char* end = value == nullptr ? nullptr : strchr(value + 1, '"');
    if (comma == nullptr || end == nullptr) return;
    *comma = '\0';
    *end = '\0';
    ++value;
    if (strcmp(name, "REFLOC") == 0) {
      ReadReferenceLocation(reader->component, value);
    } else {
      Comment* comment = Append(&reader->component->comments);
      Keep(comment->name, name);
      Keep(comment->value, value);
    }
    text = end + 1;
  }
}

bool Is(const char* keyword, const char* name) { return strcmp(keyword, name) == 0; }

void ReadLine(Reader* reader, char* line) {
  if (line[0] == '#') return;
  char* rest = strchr(line, ' ');
  if (rest == nullptr) return;
  *rest++ = '\0';
  if (Is(line, "C_PIN") || Is(line, "N_PROP")) return;
  if (Is(line, "C_PROP")) {
    if (reader->component != nullptr) ReadProperties(reader, rest);
    return;
  }
  char* values[kMostValues];
  const int count = Cut(rest, " \r\n", values, kMostValues);
  if (Is(line, "N_PIN")) {
    if (count >= 5 && reader->net != nullptr) ReadPin(reader, values);
  } else if (Is(line, "NET")) {
    if (count == 1) ReadNet(reader, values);
  } else if (Is(line, "COMP")) {
    if (count == 8) ReadComponent(reader, values);
  } else if (Is(line, "P_ADDP")) {
    if (count == 8) ReadPanel(reader, values);
  } else if (Is(line, "BOARD")) {
    if (count != 6) return;
    reader->model->boardValue3 = BehindColon(values[2]);
    reader->model->boardValue4 = BehindColon(values[3]);
  } else if (Is(line, "B_UNITS")) {
    if (count == 1) Keep(reader->model->units, values[0]);
  }
}

struct BuiltNeutral final : Built {
  [[nodiscard]] Tally Count() const override {
    Tally tally;
    tally.records = model.panels.count + model.nets.count + model.components.count;
    for (std::size_t i = 0; i < model.nets.count; ++i) {
      const Net* net = model.nets.items[i];
      tally.records += net->pins.count;
      tally.characters += strlen(net->name);
      for (std::size_t k = 0; k < net->pins.count; ++k) {
        tally.characters += strlen(net->pins.items[k]->reference) + strlen(net->pins.items[k]->pin);
      }
    }
    for (std::size_t i = 0; i < model.components.count; ++i) Add(&tally, *model.components.items[i]);
    return tally;
  }

  static void Add(Tally* tally, const Component& component) {
    tally->records += component.comments.count + component.referenceLocations.count;
    tally->characters += strlen(component.value1) + strlen(component.value4);
    tally->coordinates += component.value5;
    tally->coordinates += component.value6;
    for (std::size_t i = 0; i < component.comments.count; ++i) {
      tally->characters += strlen(component.comments.items[i]->value);
    }
    for (std::size_t i = 0; i < component.referenceLocations.count; ++i) {
      tally->characters += strlen(component.referenceLocations.items[i]->value9);
      tally->coordinates += component.referenceLocations.items[i]->value1;
    }
  }

  Model model{};
};

}  // namespace

std::unique_ptr<Built> ReadNeutral(const Input& input) {
  auto built = std::make_unique<BuiltNeutral>();
  Reader reader{&built->model, nullptr, nullptr};
  ForEachLine(input.path.c_str(), [&](char* line) { ReadLine(&reader, line); });
  return built;
}

}  // namespace kestrin::bench::plain_c
