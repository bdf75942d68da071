#include <initializer_list>
#include <random>
#include <string>

#include "support/generators/generators.h"

namespace kestrin::test {
namespace {

class GeometryWriter {
 public:
  GeometryWriter(std::ostream& out, std::int64_t size) : out_(out), left_(size) {}

  void Write() {
    WriteBoard();
    WritePadstacks();
    while (left_ > 0) WriteComponent();
  }

 private:
  /// The arguments use random numbers. They are a braced list, whose elements are evaluated in order, so that
  /// every compiler generates the same bytes.
  void Line(std::initializer_list<std::string> parts) {
    for (const std::string& part : parts) {
      out_ << part;
      left_ -= static_cast<std::int64_t>(part.size());
    }
    out_ << '\n';
    --left_;
  }
  void Create(const std::string& kind, const std::string& name) {
    Line({"$$create_", kind, "(\"", name, "\");"});
    Line({"$$page(0.0, 0.0, @mm);"});
  }
  /// Each value begins with its comma.
  void Attribute(const std::string& name, std::initializer_list<std::string> values) {
    std::string joined;
    for (const std::string& value : values) joined += value;
    Line({"$$attribute(\"", name, "\"", joined, ");"});
  }

  std::int64_t Below(std::int64_t limit) { return static_cast<std::int64_t>(random_()) % limit; }
  std::string Number() {
    const std::string thousandths = std::to_string(100'000 + Below(100'000));
    const std::string sign = Below(2) == 0 ? "-" : "";
    return sign + thousandths.substr(thousandths[1] == '0' ? 2 : 1, thousandths[1] == '0' ? 1 : 2) + "." +
           thousandths.substr(3);
  }
  std::string Points(std::int64_t count) {
    std::string text;
    for (std::int64_t i = 0; i < 2 * count; ++i) text.append(i == 0 ? "[" : ", ").append(Number());
    return text + "]";
  }
  /// Most lists are short; one in twenty may have hundreds of points.
  std::string SomePoints() { return Points(Below(20) == 0 ? 2 + Below(400) : 2 + Below(10)); }
  std::string Layer() {
    static constexpr const char* kLayers[] = {"SIGNAL_1", "SILKSCREEN_1", "PLACE_1", "SOLDER_MASK_2"};
    return std::string("\"") + kLayers[Below(4)] + "\"";
  }

  void WriteBoard() {
    Line({"$$lock_windows(@all);"});
    Create("board", "GENERATED");
    Attribute("BOARD_ROUTING_LAYERS", {", [4]"});
    Attribute("BOARD_PLACEMENT_OUTLINE", {", ", Points(100)});
    Attribute("BOARD_ROUTING_OUTLINE", {", ", Points(100)});
    for (int i = 0; i < 20; ++i) Attribute("ROUTING_KEEPOUT", {", ", Layer(), ", ", SomePoints()});
    Create("stackup", "STACK");
    for (int i = 1; i <= 4; ++i)
      Attribute("SIGNAL_LAYER_DEFINITION", {", \"", std::to_string(i), "\", \"SIGNAL\""});
  }
  void WritePadstacks() {
    for (int i = 0; i < 20; ++i) {
      Create("pin", "PIN_" + std::to_string(i));
      Attribute("TERMINAL_DRILL_SIZE", {", [", Number(), "]"});
      Line({"$$polygon(\"PAD_1\", ", Points(4), ");"});
    }
  }
  void WriteComponent() {
    Create("component", "PART_" + std::to_string(++components_));
    Attribute("COMPONENT_HEIGHT", {", [", Number(), "]"});
    Attribute("COMPONENT_LAYOUT_TYPE", {", \"surface\""});
    Attribute("COMPONENT_PLACEMENT_OUTLINE", {", \"PLACE_1\", ", Points(4)});
    const std::int64_t pins = 2 + Below(30);
    for (std::int64_t i = 1; i <= pins; ++i) {
      Attribute("COMPONENT_PIN_DEFINITION", {", \"", std::to_string(i), "\", ", Points(1)});
    }
    for (int i = 0; i < 6; ++i) WriteDrawing();
    Line({"$$text(", Layer(), ", \"PART, GENERATED\", ", Number(), ", ", Number(),
          ", 1.0, @CC, 90, 1.0, 0.1, \"std\");"});
  }
  void WriteDrawing() {
    switch (Below(5)) {
      case 0: Line({"$$path(", Layer(), ", 0.15, ", SomePoints(), ");"}); break;
      case 1: Line({"$$polygon(", Layer(), ", ", SomePoints(), ");"}); break;
      case 2: Line({"$$circle(", Layer(), ", ", Number(), ", ", Number(), ", 0.5);"}); break;
      case 3:
        Line({"$$arc(", Layer(), ", -3.25, 2.25, -5.5, 0.0, -3.25, ", Number(), ", 0.15, @center);"});
        break;
      default:
        Line({"$$initial(", Points(1), ");"});
        Line({"$$terminal(", SomePoints(), ");"});
        Line({"$$path(", Layer(), ", 0.2);"});
        break;
    }
  }

  std::ostream& out_;
  std::int64_t left_;
  std::int64_t components_ = 0;
  std::minstd_rand random_;  // seeded the same in every run
};

}  // namespace

void GenerateGeometry(std::ostream& out, std::uint64_t size) {
  GeometryWriter(out, static_cast<std::int64_t>(size)).Write();
}

}  // namespace kestrin::test
