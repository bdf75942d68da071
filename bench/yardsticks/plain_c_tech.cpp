#include "bench/yardsticks/plain_c.h"

namespace kestrin::bench::plain_c {
namespace {

constexpr int kMostLogicalLayers = 16;
constexpr int kMostArguments = 32;

struct Layer {
  int number;
  Text name;
  Text logicalNames[kMostLogicalLayers];
  int logicalCount;
};
struct Via {
  Text first, second, last;
};
struct Model {
  List<Layer> layers;
  List<Via> vias;
};

void ReadLayer(Model* model, char** arguments, int count) {
  Layer* layer = Append(&model->layers);
  layer->number = atoi(arguments[0]);
  if (count > 1) KeepUnquoted(layer->name, arguments[1], '"');
  for (int i = 2; i < count && layer->logicalCount < kMostLogicalLayers; ++i) {
    KeepUnquoted(layer->logicalNames[layer->logicalCount++], arguments[i], '"');
  }
}

void ReadVia(Model* model, char** arguments, int count) {
  if (count < 3) return;
  Via* via = Append(&model->vias);
  KeepUnquoted(via->first, arguments[0], '"');
  KeepUnquoted(via->second, arguments[1], '"');
  KeepUnquoted(via->last, arguments[count - 1], '"');
}

void ReadLine(Model* model, char* line) {
  char* open = strchr(line, '(');
  if (line[0] != '$' || open == nullptr) return;
  *open = '\0';
  char* arguments[kMostArguments];
  const int count = Cut(open + 1, " ,);\r\n", arguments, kMostArguments);
  if (count == 0) return;
  if (strcmp(line, "$$define_physical_layer") == 0) {
    ReadLayer(model, arguments, count);
  } else if (strcmp(line, "$$define_rule_via") == 0) {
    ReadVia(model, arguments, count);
  }
}

struct BuiltTech final : Built {
  [[nodiscard]] Tally Count() const override {
    Tally tally;
    tally.records = model.layers.count + model.vias.count;
    for (std::size_t i = 0; i < model.layers.count; ++i) {
      const Layer* layer = model.layers.items[i];
      tally.coordinates += layer->number;
      tally.characters += strlen(layer->name);
      for (int k = 0; k < layer->logicalCount; ++k) tally.characters += strlen(layer->logicalNames[k]);
    }
    for (std::size_t i = 0; i < model.vias.count; ++i) {
      const Via* via = model.vias.items[i];
      tally.characters += strlen(via->first) + strlen(via->second) + strlen(via->last);
    }
    return tally;
  }

  Model model{};
};

}  // namespace

std::unique_ptr<Built> ReadTech(const Input& input) {
  auto built = std::make_unique<BuiltTech>();
  ForEachLine(input.path.c_str(), [&](char* line) { ReadLine(&built->model, line); });
  return built;
}

}  // namespace kestrin::bench::plain_c
