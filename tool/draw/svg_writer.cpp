#include "tool/draw/svg_writer.h"

#include <algorithm>
#include <array>
#include <cstdio>
#include <initializer_list>
#include <span>
#include <string>
#include <string_view>

#include "tool/draw/path_text.h"
#include "tool/readable_text.h"

namespace kestrin::tool::draw {
namespace {

using Shapes = std::span<const Shape>;

std::string_view EscapeOf(char c) {
  switch (c) {
    case '&': return "&amp;";
    case '<': return "&lt;";
    case '>': return "&gt;";
    case '"': return "&quot;";
    default: return {};
  }
}

bool IsPlain(char c) { return c >= 0x20 && c <= 0x7E && EscapeOf(c).empty(); }

/// Whether UTF-8 text begins with U+FFFE or U+FFFF, which XML forbids.
bool BeginsWithNoncharacter(std::string_view utf8) {
  return utf8.starts_with("\xEF\xBF\xBE") || utf8.starts_with("\xEF\xBF\xBF");
}

/// Appends text for XML, between tags or between double quotes. Control characters cannot be written in XML.
void AppendEscaped(std::string& text, std::string_view bytes) {
  constexpr std::string_view kReplacement = "\xEF\xBF\xBD";
  if (std::all_of(bytes.begin(), bytes.end(), IsPlain)) {
    text += bytes;
    return;
  }
  const std::string utf8 = ToUtf8(bytes);
  for (std::string_view rest = utf8; !rest.empty(); rest.remove_prefix(1)) {
    const char c = rest.front();
    if (BeginsWithNoncharacter(rest)) {
      text += kReplacement;
      rest.remove_prefix(2);
    } else if (static_cast<unsigned char>(c) < 0x20) {
      text += kReplacement;
    } else if (const std::string_view escape = EscapeOf(c); !escape.empty()) {
      text += escape;
    } else {
      text += c;
    }
  }
}

std::string HexOf(Colour colour) {
  std::array<char, 8> text;
  std::snprintf(text.data(), text.size(), "#%06x", colour & 0xFFFFFFU);
  return text.data();
}

class SvgWriter {
 public:
  SvgWriter(const Picture& picture, OutputFile& file)
      : picture_(picture),
        file_(file),
        numbers_(Steps(std::max(picture.box.Width(), picture.box.Height()))) {}

  void Write() {
    WriteHead();
    for (const Coat& coat : picture_.coats) WriteCoat(coat);
    text_ += "</svg>\n";
    file_.Write(text_);
  }

 private:
  void WriteHead();
  void WriteCoat(const Coat& coat);
  void WriteBatch(const Coat& coat, const Brush& brush, Shapes shapes);
  void WriteStyle(const Coat& coat, const Brush& brush);
  void WritePen(double width);
  void WriteTags(const Owner& owner);
  void WritePath(const Brush& brush, Shapes shapes);
  void WriteText(const SceneText& text);
  void Attribute(std::string_view name, double length) { Attribute(name, length, numbers_); }
  void Attribute(std::string_view name, double number, const DecimalText& numbers);
  void Attribute(std::string_view name, std::string_view text);
  /// An attribute of names from the files.
  void Name(std::string_view name, std::initializer_list<std::string_view> pieces);
  void WriteOutIfLong() {
    constexpr std::size_t kBlock = 65536;
    if (text_.size() < kBlock) return;
    file_.Write(text_);
    text_.clear();
  }

  const Picture& picture_;
  OutputFile& file_;
  DecimalText numbers_;              // for coordinates, coarser on large boards
  DecimalText factors_{Steps(0.0)};  // for numbers that do not grow with the board
  std::string text_;
};

void SvgWriter::Attribute(std::string_view name, double number, const DecimalText& numbers) {
  text_ += ' ';
  text_ += name;
  text_ += "=\"";
  numbers.Append(text_, number);
  text_ += '"';
}

void SvgWriter::Attribute(std::string_view name, std::string_view text) {
  text_ += ' ';
  text_ += name;
  text_ += "=\"";
  text_ += text;
  text_ += '"';
}

void SvgWriter::Name(std::string_view name, std::initializer_list<std::string_view> pieces) {
  text_ += ' ';
  text_ += name;
  text_ += "=\"";
  for (const std::string_view piece : pieces) AppendEscaped(text_, piece);
  text_ += '"';
}

void SvgWriter::WriteHead() {
  const Box& box = picture_.box;
  text_ += "<svg xmlns=\"http://www.w3.org/2000/svg\"";
  text_ += " xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\"";
  if (picture_.width) {
    Attribute("width", std::to_string(*picture_.width));
    Attribute("height", std::to_string(picture_.HeightInPixels()));
  } else {
    text_ += " width=\"";
    numbers_.Append(text_, box.Width());
    text_ += "mm\" height=\"";
    numbers_.Append(text_, box.Height());
    text_ += "mm\"";
  }
  text_ += " viewBox=\"";
  for (const double length : {picture_.Left(), -box.y1, box.Width(), box.Height()}) {
    numbers_.Append(text_, length);
    text_ += ' ';
  }
  text_.back() = '"';
  text_ += ">\n<title>";
  AppendEscaped(text_, picture_.scene->board->name);
  text_ += "</title>\n<rect";
  Attribute("x", picture_.Left());
  Attribute("y", -box.y1);
  Attribute("width", box.Width());
  Attribute("height", box.Height());
  Attribute("fill", HexOf(picture_.background));
  text_ += "/>\n";
}

void SvgWriter::WriteCoat(const Coat& coat) {
  text_ += "<g";
  Attribute("id", "layer-" + coat.id);
  Attribute("inkscape:groupmode", "layer");
  Name("inkscape:label", {coat.label});
  Attribute("fill", "none");
  Attribute("stroke", HexOf(coat.colour));
  Attribute("stroke-linecap", "round");
  Attribute("stroke-linejoin", "round");
  text_ += ">\n";
  for (const auto& [brush, shapes] : coat.layer->batches) {
    if (coat.parts.contains(brush.part)) WriteBatch(coat, brush, shapes);
  }
  if (coat.hasTexts && !coat.layer->texts.empty()) {
    text_ += "<g";
    Attribute("fill", HexOf(coat.colour));
    Attribute("stroke", "none");
    Attribute("font-family", "sans-serif");
    Attribute("xml:space", "preserve");
    text_ += ">\n";
    for (const SceneText& text : coat.layer->texts) WriteText(text);
    text_ += "</g>\n";
  }
  text_ += "</g>\n";
}

void SvgWriter::WriteStyle(const Coat& coat, const Brush& brush) {
  if (brush.isDimmed) Attribute("opacity", kDimmed, factors_);
  if (brush.form != Form::kFill) {
    return WritePen(brush.width > 0.0 ? brush.width : picture_.ThinLine());
  }
  const Fill& fill = coat.FillOf(brush.part);
  Attribute("fill", HexOf(coat.colour));
  if (fill.opacity < 1.0) Attribute("fill-opacity", fill.opacity, factors_);
  Attribute("fill-rule", "evenodd");
  if (!fill.hasContour) return Attribute("stroke", "none");
  if (coat.contour != coat.colour) Attribute("stroke", HexOf(coat.contour));
  WritePen(picture_.ThinLine());
}

/// A width that is rounded to 0 would hide the line.
void SvgWriter::WritePen(double width) { Attribute("stroke-width", std::max(width, 0.001), factors_); }

/// The number of shapes at the beginning of the list that make one path: an area and its holes; else all
/// that nothing distinguishes.
std::size_t ShapesOfOnePath(Shapes shapes, const Brush& brush, bool hasTags) {
  const Owner& owner = shapes.front().owner;
  const bool isAlone = brush.form == Form::kFill || owner.pin != kNone;
  std::size_t count = 1;
  while (count < shapes.size()) {
    const Shape& next = shapes[count];
    const bool joins =
        isAlone ? next.isHole : next.owner.pin == kNone && (!hasTags || next.owner.net == owner.net);
    if (!joins) break;
    ++count;
  }
  return count;
}

void SvgWriter::WriteBatch(const Coat& coat, const Brush& brush, Shapes shapes) {
  text_ += "<g";
  WriteStyle(coat, brush);
  text_ += ">\n";
  while (!shapes.empty()) {
    const std::size_t count = ShapesOfOnePath(shapes, brush, picture_.hasTags);
    text_ += "<path";
    WriteTags(shapes.front().owner);
    WritePath(brush, shapes.first(count));
    text_ += "/>\n";
    shapes = shapes.subspan(count);
  }
  text_ += "</g>\n";
}

void SvgWriter::WriteTags(const Owner& owner) {
  const Board& board = *picture_.scene->board;
  if (owner.pin != kNone) {
    Name("data-pin", {board.components[owner.component].name, "-", board.pins[owner.pin].name});
  }
  if (picture_.hasTags && owner.net != kNone) Name("data-net", {board.nets[owner.net].name});
}

/// Begins to fetch the points of a shape that comes soon. The shapes of a brush are spread over the whole
/// board, so their points are rarely in the processor's cache, and waiting for them took half the time of a
/// path.
void FetchAhead(Shapes shapes) {
  constexpr std::size_t kAhead = 8;
  if (shapes.size() <= kAhead) return;
#if defined(__GNUC__)
  __builtin_prefetch(shapes[kAhead].points.data());
#endif
}

void SvgWriter::WritePath(const Brush& brush, Shapes shapes) {
  const bool isClosed = brush.form == Form::kFill || brush.form == Form::kContour;
  text_ += " d=\"";
  PathText path(text_, numbers_, picture_.isMirrored);
  for (; !shapes.empty(); shapes = shapes.subspan(1)) {
    FetchAhead(shapes);
    path.Add(shapes.front().points, isClosed ? PathText::End::kClosed : PathText::End::kOpen);
    WriteOutIfLong();
  }
  path.Flush();
  text_ += '"';
}

/// The font's y points down, as that of the picture does, and its origin is on the baseline.
void SvgWriter::WriteText(const SceneText& text) {
  constexpr std::array kAnchors{"start", "middle", "end"};
  const double sign = picture_.isMirrored ? -1.0 : 1.0;
  const double down = text.height * (2 - text.row) / 2.0;
  const double x = text.position.x - text.cosY * down;
  const double y = text.position.y - text.sinY * down;
  text_ += "<text";
  if (text.isDimmed) Attribute("opacity", kDimmed, factors_);
  if (text.column != 0) Attribute("text-anchor", kAnchors[static_cast<std::size_t>(text.column)]);
  Attribute("font-size", text.height / kCapitals, factors_);
  text_ += " transform=\"matrix(";
  for (const double factor : {sign * text.cosX, -text.sinX, -sign * text.cosY, text.sinY}) {
    factors_.Append(text_, factor);
    text_ += ' ';
  }
  for (const double coordinate : {sign * x, -y}) {
    numbers_.Append(text_, coordinate);
    text_ += ' ';
  }
  text_.back() = ')';
  text_ += "\">";
  AppendEscaped(text_, text.text);
  text_ += "</text>\n";
  WriteOutIfLong();
}

}  // namespace

void WriteSvg(const Picture& picture, OutputFile& file) { SvgWriter(picture, file).Write(); }

}  // namespace kestrin::tool::draw
