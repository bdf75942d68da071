#include <cctype>

#include "bench/yardsticks/plain_cpp.h"

namespace kestrin::bench::plain_cpp {
namespace {

using Numbers = std::vector<double>;

struct DrawObject {
  virtual ~DrawObject() = default;

  std::string layer;
  double width = 0.0;
};
struct Path final : DrawObject {
  Numbers coordinates;
};
struct Polygon final : DrawObject {
  Numbers coordinates;
};
struct Circle final : DrawObject {
  double x = 0.0, y = 0.0, size = 0.0;
};
struct Arc final : DrawObject {
  double points[6] = {};
  int mode = 0;
};
struct GeometryText {
  std::string layer, text;
  double x = 0.0, y = 0.0, size = 0.0;
  std::string justification;
  double angle = 0.0, value8 = 0.0, value9 = 0.0;
  std::string value10;
};
struct Outline {
  std::string name;
  Numbers coordinates;
};
struct PinDefinition {
  std::string name;
  double x = 0.0, y = 0.0;
};
struct Layer {
  std::string definition;
  std::vector<std::string> values;
};
/// A board, a component or a pin: each uses the members that it needs.
struct Geometry {
  std::string name, units;
  List<DrawObject> drawObjects;
  List<GeometryText> texts;
  int routingLayers = 0;
  Numbers placementOutline, routingOutline;
  List<Outline> keepouts, placementOutlines;
  double height = 0.0, drillSize = 0.0;
  std::string layoutType;
  List<PinDefinition> pinDefinitions;
};

/// The arguments of a command. The last may end with brackets, which no conversion minds.
double Number(const std::string& text) { return std::stod(text[0] == '[' ? text.substr(1) : text); }

/// The model, and its reader.
class GeometryModel final : public Built {
 public:
  void ReadLine(const std::string& line) {
    const std::size_t open = line.find('(');
    const std::size_t close = line.rfind(')');
    if (line[0] != '$' || open == std::string::npos || close == std::string::npos) return;
    const std::string command = line.substr(0, open);
    values_ = Arguments(line.substr(open + 1, close - open - 1));
    if (values_.empty()) return;
    if (command == "$$attribute") return ReadAttribute();
    if (command == "$$create_component") return Open(Append(components_));
    if (command == "$$create_pin") return Open(Append(pins_));
    if (command == "$$create_board") return Open(board_);
    if (command == "$$create_stackup") return OpenStackup();
    if (command == "$$page") return ReadPage();
    if (command == "$$initial") pending_.clear();
    if (command == "$$initial" || command == "$$terminal") return ReadPoints(0, pending_);
    if (geometry_ == nullptr) return;
    if (command == "$$path") return ReadPath();
    if (command == "$$polygon") return ReadPolygon();
    if (command == "$$circle") return ReadCircle();
    if (command == "$$arc") return ReadArc();
    if (command == "$$text") return ReadText();
  }

  [[nodiscard]] Tally Count() const override {
    Tally tally;
    tally.records = layers_.size();
    Add(tally, board_);
    Add(tally, board_.placementOutline);
    for (const auto& pin : pins_) Add(tally, *pin);
    for (const auto& component : components_) Add(tally, *component);
    return tally;
  }

 private:
  void Open(Geometry& geometry) {
    geometry_ = &geometry;
    geometry.name = values_[0];
  }
  void OpenStackup() {
    geometry_ = nullptr;
    stackupName_ = values_[0];
  }
  void ReadPage() {
    std::string units = values_.back().substr(1);
    for (char& c : units) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    (geometry_ == nullptr ? stackupUnits_ : geometry_->units) = units;
  }
  /// The numbers between brackets, or the pending ones where there are no brackets.
  void ReadPoints(std::size_t first, Numbers& numbers) {
    for (std::size_t i = first; i < values_.size(); ++i) numbers.push_back(Number(values_[i]));
    if (first < values_.size()) return;
    numbers = pending_;
    pending_.clear();
  }
  void ReadOutline(List<Outline>& list) {
    Outline& outline = Append(list);
    outline.name = values_[1];
    ReadPoints(2, outline.coordinates);
  }
  void ReadPinDefinition() {
    PinDefinition& pin = Append(geometry_->pinDefinitions);
    pin.name = values_[1];
    pin.x = Number(values_[2]);
    pin.y = Number(values_[3]);
  }
  void ReadLayer() {
    Layer& layer = Append(layers_);
    layer.definition = values_[0];
    layer.values.assign(values_.begin() + 1, values_.end());
  }
  void ReadAttribute() {
    const std::string& name = values_[0];
    if (geometry_ == nullptr) {
      if (name.find("LAYER_DEFINITION") != std::string::npos) ReadLayer();
    } else if (name == "COMPONENT_PIN_DEFINITION") {
      if (values_.size() >= 4) ReadPinDefinition();
    } else if (name == "COMPONENT_HEIGHT") {
      geometry_->height = Number(values_[1]);
    } else if (name == "COMPONENT_LAYOUT_TYPE") {
      geometry_->layoutType = values_[1];
    } else if (name == "COMPONENT_PLACEMENT_OUTLINE") {
      ReadOutline(geometry_->placementOutlines);
    } else if (name == "TERMINAL_DRILL_SIZE") {
      geometry_->drillSize = Number(values_[1]);
    } else if (name == "ROUTING_KEEPOUT") {
      ReadOutline(geometry_->keepouts);
    } else if (name == "BOARD_ROUTING_LAYERS") {
      geometry_->routingLayers = static_cast<int>(Number(values_[1]));
    } else if (name == "BOARD_PLACEMENT_OUTLINE") {
      ReadPoints(1, geometry_->placementOutline);
    } else if (name == "BOARD_ROUTING_OUTLINE") {
      ReadPoints(1, geometry_->routingOutline);
    }
  }
  template <class OBJECT>
  OBJECT& AddDrawObject() {
    auto object = std::make_unique<OBJECT>();
    object->layer = values_[0];
    OBJECT& added = *object;
    geometry_->drawObjects.push_back(std::move(object));
    return added;
  }
  void ReadPath() {
    Path& path = AddDrawObject<Path>();
    path.width = Number(values_[1]);
    ReadPoints(2, path.coordinates);
  }
  void ReadPolygon() { ReadPoints(1, AddDrawObject<Polygon>().coordinates); }
  void ReadCircle() {
    if (values_.size() < 4) return;
    Circle& circle = AddDrawObject<Circle>();
    circle.x = Number(values_[1]);
    circle.y = Number(values_[2]);
    circle.size = Number(values_[3]);
  }
  void ReadArc() {
    if (values_.size() < 9) return;
    Arc& arc = AddDrawObject<Arc>();
    for (std::size_t i = 0; i < 6; ++i) arc.points[i] = Number(values_[i + 1]);
    arc.width = Number(values_[7]);
    arc.mode = values_[8] == "@center" ? 2 : 1;
  }
  void ReadText() {
    if (values_.size() < 10) return;
    GeometryText& text = Append(geometry_->texts);
    text.layer = values_[0];
    text.text = values_[1];
    text.x = Number(values_[2]);
    text.y = Number(values_[3]);
    text.size = Number(values_[4]);
    text.justification = values_[5];
    text.angle = std::stoi(values_[6]);
    text.value8 = Number(values_[7]);
    text.value9 = Number(values_[8]);
    text.value10 = values_[9];
  }

  static void Add(Tally& tally, const Numbers& numbers) {
    for (const double number : numbers) tally.coordinates += number;
  }
  static void Add(Tally& tally, const Geometry& geometry) {
    tally.records += 1 + geometry.drawObjects.size() + geometry.texts.size() + geometry.keepouts.size() +
                     geometry.placementOutlines.size() + geometry.pinDefinitions.size();
    tally.characters += geometry.name.size() + geometry.units.size();
    for (const auto& object : geometry.drawObjects) Add(tally, *object);
    for (const auto& pin : geometry.pinDefinitions) {
      tally.characters += pin->name.size();
      tally.coordinates += pin->x;
      tally.coordinates += pin->y;
    }
    for (const auto& outline : geometry.placementOutlines) Add(tally, outline->coordinates);
  }
  static void Add(Tally& tally, const DrawObject& object) {
    tally.characters += object.layer.size();
    tally.coordinates += object.width;
    if (const auto* path = dynamic_cast<const Path*>(&object)) Add(tally, path->coordinates);
    if (const auto* polygon = dynamic_cast<const Polygon*>(&object)) Add(tally, polygon->coordinates);
    if (const auto* circle = dynamic_cast<const Circle*>(&object)) {
      for (const double number : {circle->x, circle->y, circle->size}) tally.coordinates += number;
    }
    if (const auto* arc = dynamic_cast<const Arc*>(&object)) {
      for (const double number : arc->points) tally.coordinates += number;
    }
  }

  Geometry board_;
  std::string stackupName_, stackupUnits_;
  List<Layer> layers_;
  List<Geometry> components_, pins_;

  Geometry* geometry_ = nullptr;  // null while the stack-up is open
  Numbers pending_;
  std::vector<std::string> values_;  // of the current line
};

}  // namespace

std::unique_ptr<Built> ReadGeometry(const Input& input) {
  auto geometry = std::make_unique<GeometryModel>();
  ForEachLine(input.path, [&](const std::string& line) { geometry->ReadLine(line); });
  return geometry;
}

}  // namespace kestrin::bench::plain_cpp
