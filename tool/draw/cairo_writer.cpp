#include "tool/draw/cairo_writer.h"

#include <cairo-pdf.h>
#include <cairo.h>

#include <array>
#include <cmath>
#include <exception>
#include <memory>
#include <numbers>
#include <string>

#include "tool/readable_text.h"
#include "tool/usage_error.h"

namespace kestrin::tool::draw {
namespace {

struct Destroyer {
  void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  void operator()(cairo_t* context) const { cairo_destroy(context); }
};
using Surface = std::unique_ptr<cairo_surface_t, Destroyer>;
using Context = std::unique_ptr<cairo_t, Destroyer>;

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
  double thinnest;   // line, in units
  double invisible;  // points that are nearer to each other than this are one
};

class CairoPainter {
 public:
  CairoPainter(const Picture& picture, cairo_surface_t* surface, Scale scale)
      : picture_(picture),
        cairo_(cairo_create(surface)),
        scale_(scale),
        sign_(picture.isMirrored ? -scale.unitsPerMillimetre : scale.unitsPerMillimetre) {}

  [[nodiscard]] cairo_status_t Paint() {
    SetColour(picture_.background, 1.0);
    cairo_paint(cairo_.get());
    cairo_set_line_join(cairo_.get(), CAIRO_LINE_JOIN_ROUND);
    cairo_set_fill_rule(cairo_.get(), CAIRO_FILL_RULE_EVEN_ODD);
    cairo_select_font_face(cairo_.get(), "sans-serif", CAIRO_FONT_SLANT_NORMAL, CAIRO_FONT_WEIGHT_NORMAL);
    for (const Coat& coat : picture_.coats) PaintCoat(coat);
    return cairo_status(cairo_.get());
  }

 private:
  void PaintCoat(const Coat& coat);
  void PaintBatch(const Coat& coat, const Brush& brush, std::span<const Shape> shapes);
  void PaintLines(const Brush& brush, std::span<const Shape> shapes);
  void PaintDots(const Brush& brush, std::span<const Shape> shapes);
  void PaintFills(const Coat& coat, const Brush& brush, std::span<const Shape> shapes);
  void PaintText(const Coat& coat, const SceneText& text);
  void Trace(std::span<const Point> points, bool isClosed);
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
};

void CairoPainter::SetColour(Colour colour, double opacity) {
  const auto channel = [colour](int shift) { return (colour >> shift & 0xFFU) / 255.0; };
  cairo_set_source_rgba(cairo_.get(), channel(16), channel(8), channel(0), opacity);
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
  const double width = brush.width * scale_.unitsPerMillimetre;
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
    if (isSmall) {
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
  constexpr double kReadable = 1.5;  // units that capitals are high
  const double size = text.height / kCapitals * scale_.unitsPerMillimetre;
  if (text.height * scale_.unitsPerMillimetre < kReadable) return;
  const std::string utf8 = ToUtf8(text.text);
  cairo_save(cairo_.get());
  SetColour(coat.colour, text.isDimmed ? kDimmed : 1.0);
  const double sign = picture_.isMirrored ? -1.0 : 1.0;
  cairo_matrix_t matrix;
  cairo_matrix_init(&matrix, sign * text.cosX, -text.sinX, -sign * text.cosY, text.sinY, X(text.position),
                    Y(text.position));
  cairo_transform(cairo_.get(), &matrix);
  cairo_set_font_size(cairo_.get(), size);
  cairo_text_extents_t extents;
  cairo_text_extents(cairo_.get(), utf8.c_str(), &extents);
  cairo_move_to(cairo_.get(), -extents.x_advance * text.column / 2.0,
                text.height * scale_.unitsPerMillimetre * (2 - text.row) / 2.0);
  cairo_show_text(cairo_.get(), utf8.c_str());
  cairo_restore(cairo_.get());
}

}  // namespace

void WritePng(const Picture& picture, OutputFile& file) {
  constexpr int kUsualWidth = 2000;
  Picture sized = picture;
  sized.width = picture.width.value_or(kUsualWidth);
  const Surface surface(cairo_image_surface_create(CAIRO_FORMAT_RGB24, *sized.width, sized.HeightInPixels()));
  Sink sink{file, nullptr};
  sink.Check(cairo_surface_status(surface.get()));
  sink.Check(CairoPainter(sized, surface.get(), {*sized.width / sized.box.Width(), 1.0, 0.5}).Paint());
  sink.Check(cairo_surface_write_to_png_stream(surface.get(), Sink::Write, &sink));
}

void WritePdf(const Picture& picture, OutputFile& file) {
  constexpr double kPointsPerMillimetre = 72.0 / 25.4;
  Sink sink{file, nullptr};
  const Surface surface(cairo_pdf_surface_create_for_stream(Sink::Write, &sink,
                                                            picture.box.Width() * kPointsPerMillimetre,
                                                            picture.box.Height() * kPointsPerMillimetre));
  const Scale scale{kPointsPerMillimetre, picture.ThinLine() * kPointsPerMillimetre, 0.0};
  sink.Check(CairoPainter(picture, surface.get(), scale).Paint());
  cairo_surface_finish(surface.get());
  sink.Check(cairo_surface_status(surface.get()));
}

}  // namespace kestrin::tool::draw
