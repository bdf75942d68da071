#include "tool/draw/html_writer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <map>
#include <string>
#include <string_view>

#include "tool/draw/shape_bytes.h"
#include "tool/draw/viewer/files.h"
#include "tool/rapidjson.h"
#include "tool/readable_text.h"

namespace kestrin::tool::draw {
namespace {

constexpr double kFarthest = 1e9;  // millimetres; anything farther is an error

using Json = rapidjson::Writer<rapidjson::StringBuffer>;

/// The names of a list in one text, a line each. A name is part of a line of a file, so it has no line feed.
template <class List, class NameOf>
std::string Lines(const List& list, NameOf nameOf) {
  std::string lines;
  for (const auto& element : list) {
    if (!lines.empty() || &element != &*list.begin()) lines += '\n';
    lines += ToUtf8(nameOf(element));
  }
  return lines;
}

void Write(Json& json, std::string_view utf8) {
  json.String(utf8.data(), static_cast<rapidjson::SizeType>(utf8.size()));
}

void WriteColours(Json& json, Colour dark, Colour print) {
  json.StartArray();
  for (const Colour colour : {dark, print}) {
    std::array<char, 8> text;
    std::snprintf(text.data(), text.size(), "#%06x", colour & 0xFFFFFFU);
    json.String(text.data());
  }
  json.EndArray();
}

class HtmlWriter {
 public:
  explicit HtmlWriter(const Picture& picture)
      : picture_(picture),
        scene_(*picture.scene),
        board_(*scene_.board),
        steps_(std::max({1.0, scene_.bounds.Width(), scene_.bounds.Height()})) {
    json_.SetMaxDecimalPlaces(3);
  }

  void Write(OutputFile& file) {
    WriteData();
    std::string data(buffer_.GetString(), buffer_.GetSize());
    // "</script>" in a name would end the data.
    for (std::size_t i = data.find('<'); i != std::string::npos; i = data.find('<', i)) {
      data.replace(i, 1, "\\u003c");
    }
    std::string_view page = kViewerPage;
    const auto writeUpTo = [&](std::string_view mark) {
      const std::size_t place = page.find(mark);
      file.Write(page.substr(0, place));
      page.remove_prefix(place + mark.size());
    };
    writeUpTo("{{style}}");
    file.Write(kViewerStyle);
    writeUpTo("{{data}}");
    file.Write(data);
    writeUpTo("{{shapes}}");
    file.Write(Base85Of(bytes_));
    writeUpTo("{{script}}");
    for (const std::string_view script : kViewerScripts) file.Write(script);
    file.Write(page);
  }

 private:
  void WriteData();
  void WriteFirstLook();
  void WriteLayer(const SceneLayer& layer);
  void WriteBatch(const Brush& brush, const std::vector<Shape>& shapes);
  void WriteText(const SceneText& text, std::array<double, 9>& before);
  void WriteView(const char* name, View view);
  void WriteCoat(const Coat& dark, const Coat& print);
  void WriteNets();
  void WriteComponents();
  /// Says where in the bytes the numbers of a list begin, and how many elements it has.
  void WritePlace(std::size_t count) {
    Member("count", static_cast<double>(count));
    Member("place", static_cast<double>(bytes_.size()));
  }
  void WriteBox(const Box& box) {
    json_.StartArray();
    for (const double length : {box.x0, box.y0, box.x1, box.y1}) json_.Double(length);
    json_.EndArray();
  }
  void Member(const char* name, std::string_view utf8) {
    json_.Key(name);
    draw::Write(json_, utf8);
  }
  void Member(const char* name, double number) {
    json_.Key(name);
    json_.Double(number);
  }

  const Picture& picture_;
  const Scene& scene_;
  const Board& board_;
  Steps steps_;
  rapidjson::StringBuffer buffer_;
  Json json_{buffer_};
  std::string bytes_;
  std::map<std::string, std::size_t> places_;  // in bytes_, of what is already there
};

void HtmlWriter::WriteData() {
  json_.StartObject();
  Member("name", ToUtf8(board_.name));
  Member("stepsPerMillimetre", static_cast<double>(steps_.PerMillimetre()));
  json_.Key("isConfirmed");
  json_.Bool(board_.reading.isConfirmed || board_.components.empty());
  json_.Key("background");
  WriteColours(json_, BackgroundOf(Theme::kDark), BackgroundOf(Theme::kPrint));
  json_.Key("box");
  WriteBox(picture_.wholeBox);
  WriteFirstLook();
  json_.Key("layers");
  json_.StartArray();
  for (const SceneLayer& layer : scene_.layers) WriteLayer(layer);
  json_.EndArray();
  json_.Key("views");
  json_.StartObject();
  WriteView("layers", View::kLayers);
  WriteView("top", View::kTop);
  WriteView("bottom", View::kBottom);
  json_.EndObject();
  WriteNets();
  WriteComponents();
  json_.EndObject();
}

void HtmlWriter::WriteFirstLook() {
  constexpr std::array kViews{"layers", "top", "bottom"};
  json_.Key("first");
  json_.StartObject();
  Member("view", kViews[static_cast<std::size_t>(picture_.view)]);
  if (picture_.isThemeChosen) Member("theme", picture_.theme == Theme::kDark ? "dark" : "light");
  json_.Key("box");
  WriteBox(picture_.box);
  json_.Key("nets");
  json_.StartArray();
  for (std::size_t i = 0; i < picture_.chosenNets.size(); ++i) {
    if (picture_.chosenNets[i]) json_.Uint(static_cast<unsigned>(i));
  }
  json_.EndArray();
  json_.EndObject();
}

void HtmlWriter::WriteLayer(const SceneLayer& layer) {
  json_.StartObject();
  Member("label", ToUtf8(layer.label));
  json_.Key("isShown");
  json_.Bool(!picture_.chosenLayers || picture_.chosenLayers->contains(&layer));
  json_.Key("colours");
  WriteColours(json_, ColourOf(scene_, layer, Theme::kDark), ColourOf(scene_, layer, Theme::kPrint));
  json_.Key("batches");
  json_.StartArray();
  for (const auto& [brush, shapes] : layer.batches) WriteBatch(brush, shapes);
  json_.EndArray();
  json_.Key("texts");
  json_.StartArray();
  std::array<double, 9> before{};
  for (const SceneText& text : layer.texts) WriteText(text, before);
  json_.EndArray();
  json_.EndObject();
}

/// Writes [part, form, width, number of shapes, their place in the bytes]. Vias and their holes, and pads on
/// several layers, have equal bytes, which are written once.
void HtmlWriter::WriteBatch(const Brush& brush, const std::vector<Shape>& shapes) {
  std::string bytes = BytesOf(shapes, steps_);
  const auto [place, isNew] = places_.try_emplace(std::move(bytes), bytes_.size());
  if (isNew) bytes_ += place->first;
  json_.StartArray();
  json_.Uint(static_cast<unsigned>(brush.part));
  json_.Uint(static_cast<unsigned>(brush.form));
  json_.Double(brush.width);
  json_.Uint64(shapes.size());
  json_.Uint64(place->second);
  json_.EndArray();
}

/// Writes [text, x, y, height, cosX, sinX, cosY, sinY, column, row], without what is at the end as in the
/// text before.
void HtmlWriter::WriteText(const SceneText& text, std::array<double, 9>& before) {
  const std::array<double, 9> numbers{text.position.x, text.position.y,     text.height,
                                      text.cosX,       text.sinX,           text.cosY,
                                      text.sinY,       double(text.column), double(text.row)};
  std::size_t count = numbers.size();
  while (count > 0 && numbers[count - 1] == before[count - 1]) --count;
  json_.StartArray();
  draw::Write(json_, ToUtf8(text.text));
  for (std::size_t i = 0; i < count; ++i) json_.Double(numbers[i]);
  json_.EndArray();
  before = numbers;
}

void HtmlWriter::WriteView(const char* name, View view) {
  json_.Key(name);
  json_.StartArray();
  const std::vector<Coat> dark = CoatsOf(scene_, view, Theme::kDark, std::nullopt);
  const std::vector<Coat> print = CoatsOf(scene_, view, Theme::kPrint, std::nullopt);
  for (std::size_t i = 0; i < dark.size(); ++i) WriteCoat(dark[i], print[i]);
  json_.EndArray();
}

void HtmlWriter::WriteCoat(const Coat& dark, const Coat& print) {
  json_.StartObject();
  json_.Key("layer");
  json_.Int64(dark.layer - scene_.layers.data());
  json_.Key("parts");
  json_.StartArray();
  for (const Part part : dark.parts) json_.Uint(static_cast<unsigned>(part));
  json_.EndArray();
  json_.Key("hasTexts");
  json_.Bool(dark.hasTexts);
  json_.Key("colours");
  WriteColours(json_, dark.colour, print.colour);
  json_.Key("contours");
  WriteColours(json_, dark.contour, print.contour);
  json_.Key("fills");  // of areas, of others: opacity, whether there is a contour
  json_.StartArray();
  for (const Fill& fill : {dark.areas, dark.others}) {
    json_.Double(fill.opacity);
    json_.Bool(fill.hasContour);
  }
  json_.EndArray();
  json_.EndObject();
}

/// The numbers of a net are among the bytes: the number of its layers, and of each its number and the length
/// of its tracks; then the number of pins that no component has.
void HtmlWriter::WriteNets() {
  json_.Key("nets");
  json_.StartObject();
  Member("names", Lines(board_.nets, [](const Net& net) { return std::string_view(net.name); }));
  WritePlace(board_.nets.size());
  json_.Key("layerNames");
  json_.StartObject();
  for (const Layer& layer : board_.layers) Member(std::to_string(layer.number).c_str(), ToUtf8(layer.name));
  json_.EndObject();
  json_.EndObject();
  for (const Net& net : board_.nets) {
    AppendNumber(bytes_, net.lengths.size());
    for (const LayerLength& length : net.lengths) {
      AppendSigned(bytes_, length.layer);
      AppendNumber(bytes_,
                   length.length <= kFarthest ? static_cast<std::uint64_t>(steps_.Of(length.length)) : 0);
    }
    const auto pins = board_.PinsOf(net);
    AppendNumber(bytes_, static_cast<std::uint64_t>(std::count_if(
                             pins.begin(), pins.end(), [](const NetPin& pin) { return !pin.pin; })));
  }
}

/// The numbers of a component are among the bytes: part, side (1 is the bottom), x, y, list of pins, number
/// of pins, and of each pin its net + 1, or 0. Components of one geometry share their list of pins.
void HtmlWriter::WriteComponents() {
  std::map<std::string_view, std::size_t> partIndexes;
  std::vector<std::string_view> parts;
  std::map<std::string, std::size_t> pinListIndexes;
  std::vector<std::string_view> pinLists;
  json_.Key("components");
  json_.StartObject();
  WritePlace(board_.components.size());
  for (const Component& component : board_.components) {
    const auto [part, isNew] = partIndexes.try_emplace(component.part, parts.size());
    if (isNew) parts.push_back(part->first);
    AppendNumber(bytes_, part->second);
    AppendNumber(bytes_, component.side == Side::kBottom ? 1 : 0);
    const auto [x, y] = component.position;
    const bool isNear = std::abs(x) <= kFarthest && std::abs(y) <= kFarthest;
    AppendSigned(bytes_, isNear ? steps_.Of(x) : 0);
    AppendSigned(bytes_, isNear ? steps_.Of(y) : 0);
    const auto [pins, isNewList] = pinListIndexes.try_emplace(
        Lines(board_.PinsOf(component), [](const Pin& pin) { return std::string_view(pin.name); }),
        pinLists.size());
    if (isNewList) pinLists.push_back(pins->first);
    AppendNumber(bytes_, pins->second);
    AppendNumber(bytes_, component.pins.count);
    for (const Pin& pin : board_.PinsOf(component)) AppendNumber(bytes_, pin.net ? *pin.net + 1U : 0U);
  }
  Member("names", Lines(board_.components, [](const Component& c) { return std::string_view(c.name); }));
  Member("parts", Lines(parts, [](std::string_view part) { return part; }));
  json_.Key("pinLists");
  json_.StartArray();
  for (const std::string_view pins : pinLists) draw::Write(json_, pins);
  json_.EndArray();
  json_.EndObject();
}

}  // namespace

void WriteHtml(const Picture& picture, OutputFile& file) { HtmlWriter(picture).Write(file); }

}  // namespace kestrin::tool::draw
