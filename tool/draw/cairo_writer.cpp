#include "tool/draw/cairo_writer.h"

#include <cairo-pdf.h>
#include <cairo.h>

#include <algorithm>
#include <cmath>
#include <exception>
#include <memory>
#include <numbers>
#include <span>
#include <string>
#include <vector>

#include "tool/draw/clip.h"
#include "tool/draw/curves.h"
#include "tool/readable_text.h"
#include "tool/usage_error.h"

namespace kestrin::tool::draw {
namespace {

struct Destroyer {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
  void operator()(cairo_path_t* path) const { cairo_path_destroy(path); }
  void operator()(cairo_font_options_t* options) const { cairo_font_options_destroy(options); }
};
using Surface = std::unique_ptr<cairo_surface_t, Destroyer>;
using Context = std::unique_ptr<cairo_t, Destroyer>;
using Path = std::unique_ptr<cairo_path_t, Destroyer>;
using FontOptions = std::unique_ptr<cairo_font_options_t, Destroyer>;

/// What Cairo writes goes to a file. Cairo is C, so an exception must not pass through it.
struct Sink {
  OutputFile& file;
  std::exception_ptr failure;

  static cairo_status_t Write(void* closure, const unsigned char* bytes, unsigned int count) noexcept {
    auto& sink = *static_cast<Sink*>(closure);
    try {
      sink.file.Write({reinterpret_cast<const char*>(bytes), count});
      return CAIRO_STATUS_SUCCESS;
    } catch (...) {
      sink.failure = std::current_exception();
      return CAIRO_STATUS_WRITE_ERROR;
    }
  }
  void Check(cairo_status_t status) const {
    if (failure) std::rethrow_exception(failure);
    if (status == CAIRO_STATUS_NO_MEMORY) throw std::bad_alloc();
    if (status != CAIRO_STATUS_SUCCESS) {
      throw UsageError(std::string("cannot draw the picture: ") + cairo_status_to_string(status));
    }
  }
};

/// How large the units of a surface are, and what is too small to see in it.
struct Scale {
  double unitsPerMillimetre;
  double thinnest;    // line, in units
  double invisible;   // points that are nearer to each other than this are one
  double unreadable;  // capitals that are lower than this are left out
};

/// How far outside the picture, in units, anything may be. Cairo computes in fixed point, with 24 bits before
/// it, so lines that are much longer than a picture would be drawn elsewhere.
constexpr double kFarthest = 30000.0;

class CairoPainter {
 public:
  CairoPainter(const Picture& picture, cairo_surface_t* surface, Scale scale)
      : picture_(picture),
        cairo_(cairo_create(surface)),
        scale_(scale),
        sign_(picture.isMirrored ? -scale.unitsPerMillimetre : scale.unitsPerMillimetre),
        near_(picture.box) {
    near_.Grow(kFarthest / scale.unitsPerMillimetre);
    const Box& bounds = picture.scene->bounds;
    isFar_ = bounds.x0 < near_.x0 || bounds.y0 < near_.y0 || bounds.x1 > near_.x1 || bounds.y1 > near_.y1;
  }

  [[nodiscard]] cairo_status_t Paint() {
    SetColour(picture_.background, 1.0);
    cairo_paint(cairo_.get());
    cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
    cairo_set_fill_rule(cairo_.get(), CAIRO_FILL_RULE_EVEN_ODD);
    SetFont();
    for (const Coat& coat : picture_.coats) PaintCoat(coat);
    return cairo_status(cairo_.get());
  }

 private:
  void SetFont();
  void PaintCoat(const Coat& coat);
  void PaintBatch(const Coat& coat, const Brush& brush, std::span<const Shape> shapes);
  void PaintLines(const Brush& brush, std::span<const Shape> shapes);
  void PaintDots(const Brush& brush, std::span<const Shape> shapes);
  void PaintFills(const Coat& coat, const Brush& brush, std::span<const Shape> shapes);
  void PaintText(const Coat& coat, const SceneText& text);
  void PaintTextAsShapes(const SceneText& text, const std::string& utf8, double fontSize);
  void Trace(std::span<const Point> points, bool isClosed);
  void TraceNear(std::span<const Point> points, bool isClosed);
  void SetColour(Colour colour, double opacity);
  [[nodiscard]] double X(Point point) const {
    return point.x * sign_ - picture_.Left() * scale_.unitsPerMillimetre;
  }
  [[nodiscard]] double Y(Point point) const {
    return (picture_.box.y1 - point.y) * scale_.unitsPerMillimetre;
  }

  const Picture& picture_;
  Context cairo_;
  Scale scale_;
  double sign_;  // units per millimetre, negative if x is mirrored
  Box near_;     // the picture and what is around it
  bool isFar_;   // something is beyond that
};

void CairoPainter::SetColour(Colour colour, double opacity) {
  const auto channel = [colour](int shift) { return (colour >> shift & 0xFFU) / 255.0; };
  cairo_set_source_rgba(cairo_.get(), channel(16), channel(8), channel(0), opacity);
}

/// Letters are as wide in small pictures as in large ones.
void CairoPainter::SetFont() {
  const FontOptions options(cairo_font_options_create());
  cairo_font_options_set_hint_style(options.get(), CAIRO_HINT_STYLE_NONE);
  cairo_font_options_set_hint_metrics(options.get(), CAIRO_HINT_METRICS_OFF);
  cairo_font_options_set_antialias(options.get(), CAIRO_ANTIALIAS_GRAY);
  cairo_set_font_options(cairo_.get(), options.get());
  cairo_select_font_face(cairo_.get(), "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
}

void CairoPainter::PaintCoat(const Coat& coat) {
  for (const auto& [brush, shapes] : coat.layer->batches) {
    if (!coat.parts.contains(brush.part)) continue;
    if (brush.isDimmed) cairo_push_group(cairo_.get());
    PaintBatch(coat, brush, shapes);
    if (!brush.isDimmed) continue;
    cairo_pop_group_to_source(cairo_.get());
    cairo_paint_with_alpha(cairo_.get(), kDimmed);
  }
  if (!coat.hasTexts) return;
  for (const SceneText& text : coat.layer->texts) PaintText(coat, text);
}

void CairoPainter::PaintBatch(const Coat& coat, const Brush& brush, std::span<const Shape> shapes) {
  cairo_set_antialias(cairo_.get(), CAIRO_ANTIALIAS_DEFAULT);
  SetColour(coat.colour, 1.0);
  if (brush.form == Form::kFill) return PaintFills(coat, brush, shapes);
  if (brush.form == Form::kDot) return PaintDots(brush, shapes);
  PaintLines(brush, shapes);
}

/// Cairo takes longest for paths with many legs, and for many short paths; so a path has some.
void CairoPainter::PaintLines(const Brush& brush, std::span<const Shape> shapes) {
  constexpr std::size_t kLegsOfPath = 256;
  const double width = std::min(kFarthest, brush.width * scale_.unitsPerMillimetre);
  const bool isThin = width <= scale_.thinnest;
  cairo_set_line_width(cairo_.get(), isThin ? scale_.thinnest : width);
  // Nobody sees the ends and edges of thin lines, which take long.
  cairo_set_antialias(cairo_.get(), isThin ? CAIRO_ANTIALIAS_FAST : CAIRO_ANTIALIAS_DEFAULT);
  cairo_set_line_cap(cairo_.get(), isThin ? CAIRO_LINE_CAP_BUTT : CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cairo_.get(), isThin ? CAIRO_LINE_JOIN_BEVEL : CAIRO_LINE_JOIN_ROUND);
  std::size_t legs = 0;
  for (const Shape& shape : shapes) {
    Trace(shape.points, brush.form == Form::kContour);
    legs += shape.points.size();
    if (legs < kLegsOfPath) continue;
    cairo_stroke(cairo_.get());
    legs = 0;
  }
  cairo_stroke(cairo_.get());
}

void CairoPainter::PaintDots(const Brush& brush, std::span<const Shape> shapes) {
  constexpr std::size_t kDotsOfPath = 64;
  const double radius = std::max(brush.width * scale_.unitsPerMillimetre, scale_.thinnest) / 2.0;
  const bool isSmall = radius < scale_.thinnest;
  std::size_t dots = 0;
  for (const Shape& shape : shapes) {
    const Point point = shape.points.front();
    if (radius > kFarthest) {
      Trace(PointsOfCircle(point, brush.width / 2.0), true);
    } else if (isFar_ && !near_.Meets(BoxAround(shape.points))) {
      continue;
    } else if (isSmall) {
      cairo_rectangle(cairo_.get(), X(point) - radius, Y(point) - radius, 2.0 * radius, 2.0 * radius);
    } else {
      cairo_new_sub_path(cairo_.get());
      cairo_arc(cairo_.get(), X(point), Y(point), radius, 0.0, 2.0 * std::numbers::pi);
    }
    // Dots may overlap, which would leave a hole in a path that is filled at once.
    if (!isSmall || ++dots == kDotsOfPath) {
      cairo_fill(cairo_.get());
      dots = 0;
    }
  }
  cairo_fill(cairo_.get());
}

void CairoPainter::PaintFills(const Coat& coat, const Brush& brush, std::span<const Shape> shapes) {
  const Fill& fill = coat.FillOf(brush.part);
  cairo_set_line_width(cairo_.get(),
                       std::max(scale_.thinnest, picture_.ThinLine() * scale_.unitsPerMillimetre));
  cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
  for (std::size_t i = 0; i < shapes.size(); ++i) {
    Trace(shapes[i].points, true);
    if (i + 1 < shapes.size() && shapes[i + 1].isHole) continue;
    if (fill.opacity > 0.0) {
      SetColour(coat.colour, fill.opacity);
      cairo_fill_preserve(cairo_.get());
    }
    if (fill.hasContour) {
      SetColour(coat.contour, 1.0);
      cairo_stroke_preserve(cairo_.get());
    }
    cairo_new_path(cairo_.get());
  }
}

void CairoPainter::Trace(std::span<const Point> points, bool isClosed) {
  if (!isFar_) return TraceNear(points, isClosed);
  if (isClosed) return TraceNear(ClippedPolygon(points, near_), true);
  for (const std::vector<Point>& piece : ClippedLine(points, near_)) TraceNear(piece, false);
}

void CairoPainter::TraceNear(std::span<const Point> points, bool isClosed) {
  if (points.empty()) return;
  double lastX = X(points.front());
  double lastY = Y(points.front());
  cairo_move_to(cairo_.get(), lastX, lastY);
  const Point& last = points.back();
  for (const Point& point : points.subspan(1)) {
    const double x = X(point);
    const double y = Y(point);
    const bool isNear = std::abs(x - lastX) < scale_.invisible && std::abs(y - lastY) < scale_.invisible;
    if (isNear && &point != &last) continue;
    cairo_line_to(cairo_.get(), x, y);
    lastX = x;
    lastY = y;
  }
  if (isClosed) cairo_close_path(cairo_.get());
}

void CairoPainter::PaintText(const Coat& coat, const SceneText& text) {
  constexpr double kLargestFont = 1000.0;  // fonts cannot be as large as pictures can
  constexpr double kWidestLetter = 2.0;    // in heights of capitals
  const double height = text.height * scale_.unitsPerMillimetre;
  if (height < scale_.unreadable) return;
  Box box = BoxAround(std::span(&text.position, 1));
  box.Grow(text.height * kWidestLetter * static_cast<double>(text.text.size() + 1));
  if (!box.Meets(picture_.box)) return;
  const std::string utf8 = ToUtf8(text.text);
  SetColour(coat.colour, text.isDimmed ? kDimmed : 1.0);
  if (height / kCapitals > kLargestFont) return PaintTextAsShapes(text, utf8, kLargestFont);
  cairo_save(cairo_.get());
  const double sign = picture_.isMirrored ? -1.0 : 1.0;
  cairo_matrix_t matrix;
  cairo_matrix_init(&matrix, sign * text.cosX, -text.sinX, -sign * text.cosY, text.sinY, X(text.position),
                    Y(text.position));
  cairo_transform(cairo_.get(), &matrix);
  cairo_set_font_size(cairo_.get(), height / kCapitals);
  cairo_text_extents_t extents;
  cairo_text_extents(cairo_.get(), utf8.c_str(), &extents);
  cairo_move_to(cairo_.get(), -extents.x_advance * text.column / 2.0, height * (2 - text.row) / 2.0);
  cairo_show_text(cairo_.get(), utf8.c_str());
  cairo_restore(cairo_.get());
}

void CairoPainter::PaintTextAsShapes(const SceneText& text, const std::string& utf8, double fontSize) {
  cairo_set_font_size(cairo_.get(), fontSize);
  cairo_text_extents_t extents;
  cairo_text_extents(cairo_.get(), utf8.c_str(), &extents);
  cairo_move_to(cairo_.get(), 0.0, 0.0);
  cairo_text_path(cairo_.get(), utf8.c_str());
  const Path path(cairo_copy_path_flat(cairo_.get()));
  cairo_new_path(cairo_.get());
  const double unit = text.height / kCapitals / fontSize;
  std::vector<Point> outline;
  for (int i = 0; i < path->num_data; i += path->data[i].header.length) {
    if (path->data[i].header.type == CAIRO_PATH_MOVE_TO) {
      Trace(outline, true);
      outline.clear();
    }
    if (path->data[i].header.type == CAIRO_PATH_CLOSE_PATH) continue;
    const auto& [x, y] = path->data[i + 1].point;
    const double along = (x - extents.x_advance * text.column / 2.0) * unit;
    const double up = -y * unit - text.height * (2 - text.row) / 2.0;
    outline.push_back({text.position.x + along * text.cosX + up * text.cosY,
                       text.position.y + along * text.sinX + up * text.sinY});
  }
  Trace(outline, true);
  cairo_set_fill_rule(cairo_.get(), CAIRO_FILL_RULE_WINDING);
  cairo_fill(cairo_.get());
  cairo_set_fill_rule(cairo_.get(), CAIRO_FILL_RULE_EVEN_ODD);
}

}  // namespace

void WritePng(const Picture& picture, OutputFile& file) {
  constexpr double kUsualSide = 2000.0;  // the longer one
  constexpr int kMostPixels = 30000;     // of a side
  Picture sized = picture;
  const double shape = std::min(1.0, picture.box.Width() / picture.box.Height());
  if (!sized.width) sized.width = std::max(1, static_cast<int>(std::lround(kUsualSide * shape)));
  if (sized.HeightInPixels() > kMostPixels)
    throw UsageError("the picture would be too high for its width; choose a wider --box");
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, *sized.width, sized.HeightInPixels()));
  Sink sink{file, nullptr};
  if (cairo_surface_status(surface.get()) == CAIRO_STATUS_NO_MEMORY)
    throw UsageError("not enough memory for so large a picture; choose a smaller --width");
  sink.Check(cairo_surface_status(surface.get()));
  const Scale scale{.unitsPerMillimetre = *sized.width / sized.box.Width(),
                    .thinnest = 1.0,
                    .invisible = 0.5,
                    .unreadable = 1.5};
  sink.Check(CairoPainter(sized, surface.get(), scale).Paint());
  sink.Check(cairo_surface_write_to_png_stream(surface.get(), Sink::Write, &sink));
}

void WritePdf(const Picture& picture, OutputFile& file) {
  constexpr double kPointsPerMillimetre = 72.0 / 25.4;
  Sink sink{file, nullptr};
  const Surface surface(cairo_pdf_surface_create_for_stream(Sink::Write, &sink,
                                                            picture.box.Width() * kPointsPerMillimetre,
                                                            picture.box.Height() * kPointsPerMillimetre));
  const Scale scale{.unitsPerMillimetre = kPointsPerMillimetre,
                    .thinnest = picture.ThinLine() * kPointsPerMillimetre,
                    .invisible = 0.0,
                    .unreadable = 0.0};
  sink.Check(CairoPainter(picture, surface.get(), scale).Paint());
  cairo_surface_finish(surface.get());
  sink.Check(cairo_surface_status(surface.get()));
}

}  // namespace kestrin::tool::draw
