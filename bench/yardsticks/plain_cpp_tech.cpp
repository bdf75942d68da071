#include "bench/yardsticks/plain_cpp.h"

namespace kestrin::bench::plain_cpp {
namespace {

struct Layer {
  int number = 0;
  std::string name;
  std::vector<std::string> logicalNames;
};
struct Via {
  std::string first, second, last;
};

/// The model, and its reader.
class Tech final : public Built {
 public:
  void ReadLine(const std::string& line) {
    const std::size_t open = line.find('(');
    const std::size_t close = line.rfind(')');
    if (line[0] != '$' || open == std::string::npos || close == std::string::npos) return;
    const std::string command = line.substr(0, open);
    const std::vector<std::string> arguments = Arguments(line.substr(open + 1, close - open - 1));
    if (arguments.empty()) return;
    if (command == "$$define_physical_layer") {
      ReadLayer(arguments);
    } else if (command == "$$define_rule_via") {
      ReadVia(arguments);
    }
  }

  [[nodiscard]] Tally Count() const override {
    Tally tally;
    tally.records = layers_.size() + vias_.size();
    for (const auto& layer : layers_) {
      tally.coordinates += layer->number;
      tally.characters += layer->name.size();
      for (const std::string& name : layer->logicalNames) tally.characters += name.size();
    }
    for (const auto& via : vias_)
      tally.characters += via->first.size() + via->second.size() + via->last.size();
    return tally;
  }

 private:
  void ReadLayer(const std::vector<std::string>& arguments) {
    Layer& layer = Append(layers_);
    layer.number = std::stoi(arguments[0]);
    if (arguments.size() > 1) layer.name = arguments[1];
    for (std::size_t i = 2; i < arguments.size(); ++i) layer.logicalNames.push_back(arguments[i]);
  }
  void ReadVia(const std::vector<std::string>& arguments) {
    if (arguments.size() < 3) return;
    Via& via = Append(vias_);
    via.first = arguments[0];
    via.second = arguments[1];
    via.last = arguments.back();
  }

  List<Layer> layers_;
  List<Via> vias_;
};

}  // namespace

std::unique_ptr<Built> ReadTech(const Input& input) {
  auto tech = std::make_unique<Tech>();
  ForEachLine(input.path, [&](const std::string& line) { tech->ReadLine(line); });
  return tech;
}

}  // namespace kestrin::bench::plain_cpp
