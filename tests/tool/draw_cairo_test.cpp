#include <cairo.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <memory>
#include <string>

#include "support/temporary_folder.h"
#include "tests/support/content_of.h"
#include "tests/support/process.h"

namespace kestrin {
namespace {

using test::ContentOf;
using test::RunTool;
using test::TemporaryFolder;

const std::string kBoard = KESTRIN_EXAMPLES "/board";

/// A PNG that the tool draws; without files, of the sample board, 10 pixels a millimetre.
class Png {
 public:
  explicit Png(const std::string& options,
               const std::string& files = kBoard + " --box 0,0,60,40 --width 600 ") {
    const TemporaryFolder folder;
    const std::string path = folder.Path("a.png");
    const auto drawn = RunTool("draw " + files + options + " -o " + path);
    EXPECT_EQ(drawn.status, 0) << drawn.err;
    Read(path);
  }
  /// What another program makes of the SVG that the tool draws instead.
  static Png FromSvg(const std::string& options, const std::string& files) {
    const TemporaryFolder folder;
    const std::string svg = folder.Path("a.svg");
    const std::string path = folder.Path("a.png");
    const auto drawn = RunTool("draw " + files + options + " -o " + svg);
    EXPECT_EQ(drawn.status, 0) << drawn.err;
    EXPECT_EQ(std::system(("rsvg-convert " + svg + " -o " + path).c_str()), 0);
    Png png;
    png.Read(path);
    return png;
  }

  [[nodiscard]] int Width() const { return cairo_image_surface_get_width(surface_.get()); }
  [[nodiscard]] int Height() const { return cairo_image_surface_get_height(surface_.get()); }

  /// The colour at a point of the board, as seen from the top or from below: "rrggbb".
  [[nodiscard]] std::string At(double x, double y, bool isFromBelow = false) const {
    const auto column = static_cast<std::ptrdiff_t>((isFromBelow ? 60.0 - x : x) * 10.0);
    return Pixel(column, static_cast<std::ptrdiff_t>((40.0 - y) * 10.0));
  }
  [[nodiscard]] std::string Pixel(std::ptrdiff_t column, std::ptrdiff_t row) const {
    std::array<char, 8> text{};
    std::snprintf(text.data(), text.size(), "%06x", Colour(column, row));
    return text.data();
  }
  [[nodiscard]] std::uint32_t Colour(std::ptrdiff_t column, std::ptrdiff_t row) const {
    const unsigned char* pixel = cairo_image_surface_get_data(surface_.get()) +
                                 row * cairo_image_surface_get_stride(surface_.get()) + column * 4;
    std::uint32_t colour = 0;
    std::memcpy(&colour, pixel, sizeof colour);
    return colour & 0xFFFFFFU;
  }

 private:
  Png() = default;
  void Read(const std::string& path) {
    surface_.reset(cairo_image_surface_create_from_png(path.c_str()));
    EXPECT_EQ(cairo_surface_status(surface_.get()), CAIRO_STATUS_SUCCESS);
  }

  struct Destroyer {
    void operator()(cairo_surface_t* surface) const { cairo_surface_destroy(surface); }
  };
  std::unique_ptr<cairo_surface_t, Destroyer> surface_;
};

TEST(DrawCairo, APngShowsTheLayersFromTheTop) {
  const Png png("");
  EXPECT_EQ(png.Width(), 600);
  EXPECT_EQ(png.Height(), 400);
  EXPECT_EQ(png.At(16.0, 29.0), "e5534b") << "U_2-4 on the top";
  EXPECT_EQ(png.At(3.5, 22.5), "10151c") << "the hole of J_1-2";
  EXPECT_EQ(png.At(3.5, 21.6), "e5534b") << "the ring around it";
  EXPECT_NE(png.At(20.0, 12.0), "1a212b") << "a plane";
  EXPECT_NE(png.At(20.0, 12.0), "4fb477") << "planes are translucent";
  EXPECT_EQ(png.At(0.5, 0.5), "1a212b") << "outside the planes";
}

TEST(DrawCairo, APngShowsTheFinishedBoard) {
  const Png top("--view top");
  EXPECT_EQ(top.At(16.0, 29.0), "e2bd62");
  EXPECT_EQ(top.At(3.5, 22.5), "10151c");
  EXPECT_EQ(top.At(9.0, 15.0), "23794a") << "a track under the mask";
  EXPECT_EQ(top.At(32.0, 21.3), "14532d") << "nothing of C_3";
  const Png bottom("--view bottom --theme print");
  EXPECT_EQ(bottom.At(32.0, 21.3, true), "e2bd62") << "C_3-1";
  EXPECT_EQ(bottom.At(16.0, 29.0, true), "14532d") << "nothing of U_2";
  EXPECT_EQ(bottom.At(48.0, 36.0, true), "ffffff") << "a hole";
}

bool AreAlike(std::uint32_t one, std::uint32_t other) {
  constexpr int kMost = 64;
  return std::ranges::all_of(std::array{0, 8, 16}, [&](int channel) {
    const auto value = [channel](std::uint32_t colour) {
      return static_cast<int>(colour >> channel & 0xFFU);
    };
    return std::abs(value(one) - value(other)) <= kMost;
  });
}

/// The number of crosses of five pixels by five that differ in two pictures. Edges of shapes and letters are
/// thinner: they may be smoothed in another way.
int DifferentCrosses(const Png& one, const Png& other) {
  constexpr int kArm = 2;
  const auto differs = [&](int column, int row) {
    return !AreAlike(one.Colour(column, row), other.Colour(column, row));
  };
  int crosses = 0;
  for (int row = kArm; row < one.Height() - kArm; ++row) {
    for (int column = kArm; column < one.Width() - kArm; ++column) {
      if (differs(column, row) && differs(column - kArm, row) && differs(column + kArm, row) &&
          differs(column, row - kArm) && differs(column, row + kArm)) {
        ++crosses;
      }
    }
  }
  return crosses;
}

TEST(DrawCairo, APngShowsWhatAnotherProgramMakesOfTheSvg) {
  // So large that no line is thinner than a pixel, which only the PNG would make wider.
  const std::string files = kBoard + " --box 0,0,60,40 --width 2000 ";
  for (const std::string options : {"", "--view top", "--view bottom --theme print", "--net GND"}) {
    const Png png(options, files);
    const Png fromSvg = Png::FromSvg(options, files);
    ASSERT_EQ(fromSvg.Width(), png.Width());
    ASSERT_EQ(fromSvg.Height(), png.Height());
    EXPECT_EQ(DifferentCrosses(png, fromSvg), 0) << options;
  }
  EXPECT_GT(DifferentCrosses(Png("", files), Png("--layers TOP", files)), 1000) << "they are compared";
}

TEST(DrawCairo, OtherNetsDim) {
  const Png png("--net 'VCC 3V3'");
  EXPECT_EQ(png.At(16.0, 29.0), "e5534b");
  EXPECT_NE(png.At(3.5, 21.6), "e5534b");
}

TEST(DrawCairo, TheLongerSideHas2000Pixels) {
  const Png high("--box 0,0,1,40", kBoard + ' ');
  EXPECT_EQ(high.Width(), 50);
  EXPECT_EQ(high.Height(), 2000);
  const Png flat("--box 0,0,40,1", kBoard + ' ');
  EXPECT_EQ(flat.Width(), 2000);
  EXPECT_EQ(flat.Height(), 50);
  const TemporaryFolder folder;
  const auto line = RunTool("draw " + kBoard + " --box 0,0,0.001,1000000 -o " + folder.Path("a.png"));
  EXPECT_EQ(line.status, 2);
  EXPECT_NE(line.err.find("too high for its width"), std::string::npos) << line.err;
}

TEST(DrawCairo, LettersMayBeLargerThanThePicture) {
  const Png png("--box 30.3,20.3,30.35,20.35 --width 500", kBoard + ' ');
  EXPECT_EQ(png.Pixel(250, 250), "8fa3bd") << "in the U of U_1";
}

TEST(DrawCairo, LinesToFarPointsAreWhereTheyBelong) {
  const TemporaryFolder folder;
  const std::string traces =
      folder.File("a.traces",
                  "UNITS MM\n# NET A\nWIR 1 0 0 0 0\nSEG -500000 -400000 1 1\nSEG 500000 400000 1 1\n"
                  "WIR 2 0 0 0 0\nSEG 8 2 1 0.5\nSEG 900000 2 1 0.5\nSEG 8 1 1 0.5\n"
                  "FIL A SIGNAL_1 S 1 2 0 1 0 0.25 0 4 0 STYLE FULL CROSS 1\nARE A SIGNAL_1 S 1 0.25 8\n"
                  "VER 1 7\nVER 1 9\nVER -900000 900009\nVER -900000 7\n");
  const Png png("--box 0,0,10,10 --width 1000", traces + ' ');
  const struct {
    std::ptrdiff_t column;
    std::ptrdiff_t row;
    bool isCopper;
  } cases[] = {{500, 600, true}, {500, 500, false}, {850, 800, true}, {950, 850, false}, {999, 900, true},
               {50, 200, true},  {50, 70, true},    {50, 30, false},  {150, 200, false}};
  for (const auto& c : cases) {
    EXPECT_EQ(png.Pixel(c.column, c.row) != "10151c", c.isCopper) << c.column << ' ' << c.row;
  }
}

TEST(DrawCairo, APdfKeepsTextsThatArePerhapsReadOnlyWhenItIsEnlarged) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("a.pdf");
  const std::string geometry = folder.File(
      "a.geometry", "$$create_board(B)\n$$page(@mm)\n$$text(SILKSCREEN_1, \"TINY\", 0, 0, 0.2, @BL, 0)\n");
  ASSERT_EQ(RunTool("draw --geometry " + geometry + " -o " + path).status, 0);
  EXPECT_NE(ContentOf(path).find("/Font"), std::string::npos);
}

TEST(DrawCairo, APdfIsAsLargeAsTheBoard) {
  const TemporaryFolder folder;
  const std::string path = folder.Path("a.pdf");
  ASSERT_EQ(RunTool("draw " + kBoard + " --box 0,0,25.4,12.7 -o " + path).status, 0);
  const std::string pdf = ContentOf(path);
  EXPECT_EQ(pdf.substr(0, 5), "%PDF-");
  EXPECT_NE(pdf.find("/MediaBox [ 0 0 72 36 ]"), std::string::npos);
}

TEST(DrawCairo, AFullDiskLeavesNoFile) {
  const TemporaryFolder folder;
  for (const char* name : {"a.png", "a.pdf"}) {
    const std::string draw =
        KESTRIN_TOOL " draw " + kBoard + " -o " + folder.Path(name) + " 2>" + folder.Path("err");
    ASSERT_EQ(std::system(("sh -c \"trap '' XFSZ; ulimit -f 4; exec " + draw + "\"; test $? = 2").c_str()),
              0);
    EXPECT_FALSE(std::ifstream(folder.Path(name)).is_open());
  }
}

}  // namespace
}  // namespace kestrin
