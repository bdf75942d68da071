#include "bench/yardsticks/plain_cpp.h"

namespace kestrin::bench::plain_cpp {
namespace {

struct Panel {
  std::string boardName;
  double value4 = 0.0, value5 = 0.0;
  int value6 = 0, value7 = 0, value8 = 0;
};
struct Pin {
  std::string reference, pin;
};
struct Net {
  std::string name;
  List<Pin> pins;
};
struct Comment {
  std::string name, value;
};
struct ReferenceLocation {
  double value1 = 0.0, value2 = 0.0;
  int value3 = 0;
  std::string value4;
  double value5 = 0.0, value6 = 0.0, value7 = 0.0;
  std::string value8, value9;
};
struct Component {
  std::string value1, value2, value3, value4;
  double value5 = 0.0, value6 = 0.0;
  int value7 = 0, value8 = 0;
  std::string referenceLocationFirst;
  List<ReferenceLocation> referenceLocations;
  List<Comment> comments;
};

/// The model, and its reader.
class Neutral final : public Built {
 public:
  void ReadLine(const std::string& line) {
    if (line[0] == '#') return;
    std::istringstream stream(line);
    std::string keyword;
    stream >> keyword;
    if (keyword == "C_PIN" || keyword == "N_PROP") return;
    if (keyword == "C_PROP") {
      if (component_ != nullptr) ReadProperties(line);
      return;
    }
    std::vector<std::string> values;
    for (std::string value; stream >> value;) values.push_back(value);
    if (keyword == "N_PIN") {
      if (values.size() >= 5 && net_ != nullptr) ReadPin(values[0]);
    } else if (keyword == "NET") {
      if (values.size() == 1) ReadNet(values[0]);
    } else if (keyword == "COMP") {
      if (values.size() == 8) ReadComponent(values);
    } else if (keyword == "P_ADDP") {
      if (values.size() == 8) ReadPanel(values);
    } else if (keyword == "BOARD") {
      if (values.size() != 6) return;
      boardValue3_ = BehindColon(values[2]);
      boardValue4_ = BehindColon(values[3]);
    } else if (keyword == "B_UNITS") {
      if (values.size() == 1) units_ = values[0];
    }
  }

  [[nodiscard]] Tally Count() const override {
    Tally tally;
    tally.records = panels_.size() + nets_.size() + components_.size();
    for (const auto& net : nets_) {
      tally.records += net->pins.size();
      tally.characters += net->name.size();
      for (const auto& pin : net->pins) tally.characters += pin->reference.size() + pin->pin.size();
    }
    for (const auto& component : components_) {
      tally.records += component->comments.size() + component->referenceLocations.size();
      tally.characters += component->value1.size() + component->value4.size();
      tally.coordinates += component->value5;
      tally.coordinates += component->value6;
      for (const auto& comment : component->comments) tally.characters += comment->value.size();
      for (const auto& location : component->referenceLocations) {
        tally.characters += location->value9.size();
        tally.coordinates += location->value1;
      }
    }
    return tally;
  }

 private:
  static double BehindColon(const std::string& value) {
    return std::stod(value.substr(value.rfind(':') + 1));
  }

  void ReadPanel(const std::vector<std::string>& values) {
    Panel& panel = Append(panels_);
    panel.boardName = values[1];
    panel.value4 = std::stod(values[3]);
    panel.value5 = std::stod(values[4]);
    panel.value6 = std::stoi(values[5]);
    panel.value7 = std::stoi(values[6]);
    panel.value8 = std::stoi(values[7]);
  }
  void ReadNet(const std::string& name) {
    net_ = &Append(nets_);
    net_->name = Unquoted(name, '\'');
  }
  void ReadPin(const std::string& name) {
    Pin& pin = Append(net_->pins);
    const std::size_t hyphen = name.find('-');
    if (hyphen == std::string::npos) {
      pin.pin = name;
      return;
    }
    pin.reference = name.substr(0, hyphen);
    pin.pin = name.substr(hyphen + 1);
  }
  void ReadComponent(const std::vector<std::string>& values) {
    Component& component = Append(components_);
    component.value1 = values[0];
    component.value2 = values[1];
    component.value3 = values[2];
    component.value4 = values[3];
    component.value5 = std::stod(values[4]);
    component.value6 = std::stod(values[5]);
    component.value7 = std::stoi(values[6]);
    component.value8 = std::stoi(values[7]);
    component_ = &component;
  }
  /// Groups of a name and a value between quotes: (NAME,"value").
  void ReadProperties(const std::string& line) {
    std::size_t end = 0;
    while ((end = line.find('(', end)) != std::string::npos) {
      const std::size_t comma = line.find(',', end);
      const std::size_t open = line.find('"', end);
      if (comma == std::string::npos || open == std::string::npos) return;
      const std::size_t close = line.find('"', open + 1);
      if (close == std::string::npos) return;
      AddProperty(line.substr(end + 1, comma - end - 1), line.substr(open + 1, close - open - 1));
      end = close;
    }
  }
  void AddProperty(const std::string& name, const std::string& value) {
    if (name == "REFLOC") return ReadReferenceLocation(value);
    Comment& comment = Append(component_->comments);
    comment.name = name;
    comment.value = value;
  }
  void ReadReferenceLocation(const std::string& text) {
    std::istringstream stream(text);
    std::vector<std::string> values;
    for (std::string value; std::getline(stream, value, ',');) values.push_back(value);
    ReferenceLocation& location = Append(component_->referenceLocations);
    if (values.size() < 11) return;
    component_->referenceLocationFirst = values[0];
    location.value1 = std::stod(values[1]);
    location.value2 = std::stod(values[2]);
    location.value3 = std::stoi(values[3]);
    location.value4 = values[4];
    location.value5 = std::stod(values[5]);
    location.value6 = std::stod(values[6]);
    location.value7 = std::stod(values[7]);
    location.value8 = values[8];
    location.value9 = values[10];
  }

  std::string units_;
  double boardValue3_ = 0.0, boardValue4_ = 0.0;
  List<Panel> panels_;
  List<Net> nets_;
  List<Component> components_;

  // Where the records that follow belong.
  Net* net_ = nullptr;
  Component* component_ = nullptr;
};

}  // namespace

std::unique_ptr<Built> ReadNeutral(const Input& input) {
  auto neutral = std::make_unique<Neutral>();
  ForEachLine(input.path, [&](const std::string& line) { neutral->ReadLine(line); });
  return neutral;
}

}  // namespace kestrin::bench::plain_cpp
