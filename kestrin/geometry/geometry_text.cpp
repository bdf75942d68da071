#include "kestrin/geometry/geometry_text.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "kestrin/geometry/geometry_words.h"
#include "kestrin/text/ignoring_case.h"

namespace kestrin {
namespace {

constexpr std::string_view kBottomLayers[] = {
    "SILKSCREEN_2", "BREAKOUT_2", "DRAWING_2",     "GLUE_MASK_2", "PAD_2",
    "PASTE_MASK_2", "PLACE_2",    "SOLDER_MASK_2", "THERMAL_2",
};

/// In the order of the anchor numbers, which start at 1.
constexpr std::string_view kJustifications[] = {"@TL", "@TC", "@TR", "@CL", "@CC",
                                                "@CR", "@BL", "@BC", "@BR"};
constexpr int kBottomLeft = 7;

constexpr char kMirrored[] = "@Mirror";
constexpr char kNotMirrored[] = "@NOMirror";
constexpr std::string_view kRightReading = "@RIGHT_READING";

/// The anchor numbers of a text and of the same text turned by 180 degrees add up to this.
constexpr int kTurnedAnchors = 10;

}  // namespace

void ForEachTextWord(const FormatWordVisitor& visit) {
  for (const std::string_view layer : kBottomLayers) visit({.text = layer, .ignoresCase = true});
  for (const std::string_view code : kJustifications) visit({.text = code, .ignoresCase = true});
  visit({.text = kRightReading, .ignoresCase = true});
  visit({.text = CMGeomText().m_sValue10.View()});  // what a line without it has
  for (const char* option : {kMirrored, kNotMirrored}) visit({.text = option, .place = WordPlace::kInside});
}

int CMGeomText::IsBottomLayer(CString layerName) const {
  const bool isBottom = std::any_of(std::begin(kBottomLayers), std::end(kBottomLayers),
                                    [&](auto bottom) { return EqualIgnoringCase(layerName.View(), bottom); });
  return isBottom ? 1 : 0;
}

void CMGeomText::Get_OrvaneTextStyleValue(int& mirror, double& angle, int& anchor) const {
  mirror = GetMirrorStatus();
  angle = Get_OrvaneAngle();
  anchor = Get_OrvaneJustification();
}

int CMGeomText::GetMirrorStatus() const {
  if (IsBottomLayer(m_sLayer) != 0) return m_sMirror.Find(kNotMirrored) == -1 ? 1 : 0;
  return m_sMirror.Find(kMirrored) == -1 ? 0 : 1;
}

int CMGeomText::Is_Apply_Right_Reading() const {
  if (!m_sReading.IsEmpty() && !EqualIgnoringCase(m_sReading.View(), kRightReading)) return 0;
  const double from = GetMirrorStatus() != 0 ? 90.0 : 91.0;
  return from <= m_dAngle && m_dAngle < from + 180.0 ? 1 : 0;
}

double CMGeomText::Get_OrvaneAngle() const {
  return Is_Apply_Right_Reading() != 0 ? m_dAngle - 180.0 : m_dAngle;
}

int CMGeomText::Convert_TavrelJust_To_OrvaneJust() const {
  const auto* found = std::find_if(std::begin(kJustifications), std::end(kJustifications), [&](auto code) {
    return EqualIgnoringCase(m_sJustification.View(), code);
  });
  return found == std::end(kJustifications) ? kBottomLeft
                                            : static_cast<int>(found - std::begin(kJustifications)) + 1;
}

int CMGeomText::Get_OrvaneJustification() const {
  const int anchor = Convert_TavrelJust_To_OrvaneJust();
  return Is_Apply_Right_Reading() != 0 ? kTurnedAnchors - anchor : anchor;
}

}  // namespace kestrin
