#include "kestrin/geometry/geometry_text.h"

#include <gtest/gtest.h>

#include <string>

namespace kestrin {
namespace {

TEST(GeometryText, ConvertsToTheTextConventionsOfHosts) {
  struct Case {
    const char* layer;
    const char* mirrorOption;
    double angle;
    const char* justification;
    int mirror;
    double hostAngle;
    int anchor;
    const char* reading = "";
  };
  const Case cases[] = {
      // the layers that are mirrored, and what overrides it
      {"PAD_1", "", 0, "@CC", 0, 0, 5},
      {"PAD_1", "@Mirror", 0, "@CC", 1, 0, 5},
      {"PAD_1", "x@Mirrored", 0, "@CC", 1, 0, 5},
      {"PAD_1", "@MIRROR", 0, "@CC", 0, 0, 5},
      {"PAD_1", "@NOMirror", 0, "@CC", 0, 0, 5},
      {"PAD_2", "", 0, "@CC", 1, 0, 5},
      {"PAD_2", "@NOMirror", 0, "@CC", 0, 0, 5},
      {"PAD_2", "@NOMIRROR", 0, "@CC", 1, 0, 5},
      // the justification codes
      {"TOP", "", 0, "@TL", 0, 0, 1},
      {"TOP", "", 0, "@tc", 0, 0, 2},
      {"TOP", "", 0, "@TR", 0, 0, 3},
      {"TOP", "", 0, "@CL", 0, 0, 4},
      {"TOP", "", 0, "@cr", 0, 0, 6},
      {"TOP", "", 0, "@BL", 0, 0, 7},
      {"TOP", "", 0, "@BC", 0, 0, 8},
      {"TOP", "", 0, "@BR", 0, 0, 9},
      {"TOP", "", 0, "", 0, 0, 7},
      {"TOP", "", 0, "CC", 0, 0, 7},
      {"TOP", "", 0, "@CC ", 0, 0, 7},
      // text that would be upside down is turned, and so is its anchor
      {"TOP", "", 90, "@TL", 0, 90, 1},
      {"TOP", "", 90.5, "@TL", 0, 90.5, 1},
      {"TOP", "", 91, "@TL", 0, -89, 9},
      {"TOP", "", 180, "@TC", 0, 0, 8},
      {"TOP", "", 270, "@CR", 0, 90, 4},
      {"TOP", "", 271, "@CR", 0, 271, 6},
      {"TOP", "", -180, "@TL", 0, -180, 1},
      {"TOP", "", 540, "@TL", 0, 540, 1},
      {"TOP", "@Mirror", 89, "@TL", 1, 89, 1},
      {"TOP", "@Mirror", 90, "@TL", 1, -90, 9},
      {"THERMAL_2", "", 269, "@BL", 1, 89, 3},
      {"THERMAL_2", "", 270, "@BL", 1, 270, 7},
      {"THERMAL_2", "@NOMirror", 270, "", 0, 90, 3},
      // unless the text says otherwise
      {"TOP", "", 180, "@TL", 0, 0, 9, "@right_reading"},
      {"TOP", "", 180, "@TL", 0, 180, 1, "@AS_IS"},
  };
  for (const Case& c : cases) {
    CMGeomText text;
    text.m_sLayer = c.layer;
    text.m_sMirror = c.mirrorOption;
    text.m_dAngle = c.angle;
    text.m_sJustification = c.justification;
    text.m_sReading = c.reading;
    int mirror = -1;
    double angle = -1;
    int anchor = -1;
    text.Get_OrvaneTextStyleValue(mirror, angle, anchor);
    const std::string name =
        std::string(c.layer) + " " + c.mirrorOption + " " + std::to_string(c.angle) + " " + c.justification;
    EXPECT_EQ(mirror, c.mirror) << name;
    EXPECT_EQ(angle, c.hostAngle) << name;
    EXPECT_EQ(anchor, c.anchor) << name;
  }
}

TEST(GeometryText, RecognizesBottomLayersInAnyCase) {
  const CMGeomText text;
  for (const char* name : {"SILKSCREEN_2", "BREAKOUT_2", "DRAWING_2", "GLUE_MASK_2", "PAD_2", "PASTE_MASK_2",
                           "PLACE_2", "SOLDER_MASK_2", "THERMAL_2", "silkscreen_2"}) {
    EXPECT_EQ(text.IsBottomLayer(name), 1) << name;
  }
  for (const char* name : {"", "SILKSCREEN_1", "SILKSCREEN_2 ", "SIGNAL_2", "XPAD_2", "PAD_22"}) {
    EXPECT_EQ(text.IsBottomLayer(name), 0) << name;
  }
}

}  // namespace
}  // namespace kestrin
