#include <algorithm>
#include <ostream>
#include <string>

#include "support/generators/generators.h"

namespace kestrin::test {
namespace {

std::string Layer(std::uint64_t number) {
  const std::string n = std::to_string(number);
  std::string line = "$$define_physical_layer(" + n + ", \"LAYER_" + n + "\", \"SIGNAL_" + n + "\"";
  if (number % 4 != 1) return line + ", \"POWER_" + n + "\");\n";
  for (const char* purpose : {"PAD_", "SILKSCREEN_", "SOLDER_MASK_", "PASTE_MASK_", "PLACE_", "DRAWING_"}) {
    line.append(", \"").append(purpose).append(n).append("\"");
  }
  return line + ");\n";
}

std::string ViaRule(std::uint64_t number, std::uint64_t layers) {
  const std::uint64_t first = 1 + number % layers;
  const std::uint64_t last = std::min(layers, first + 1 + number % 3);
  return "$$define_rule_via(\"VIA_" + std::to_string(number) + "\", \"LAYER_" + std::to_string(first) +
         "\", \"LAYER_" + std::to_string(last) + "\");\n";
}

}  // namespace

void GenerateTech(std::ostream& out, std::uint64_t size) {
  std::uint64_t written = 0;
  const auto write = [&](const std::string& line) {
    out << line;
    written += line.size();
  };
  write("# physical layers: number, name, logical layers\n");
  std::uint64_t layers = 0;
  while (written < size / 2) write(Layer(++layers));
  write("# via rules: via, first layer, last layer\n");
  layers = std::max<std::uint64_t>(layers, 1);
  std::uint64_t vias = 0;
  while (written < size) write(ViaRule(++vias, layers));
}

}  // namespace kestrin::test
