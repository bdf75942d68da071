#include "kestrin/board/widths.h"

#include <algorithm>
#include <vector>

#include "kestrin/base/characters.h"
#include "kestrin/board/millimetres.h"
#include "kestrin/board/polylines.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

constexpr double kSteps[] = {1.0, 0.1, 0.01, 0.001, 0.0001};

///@{
/// The range of usual track widths, in millimetres. The ends are a factor of ten apart, so that only one step
/// fits, unless the width is at an end.
constexpr double kThinnest = 0.075;
constexpr double kThickest = 0.75;
///@}

/// The median; of an even number of widths, the mean of the two in the middle.
double MedianOf(std::vector<WidthRun> runs) {
  std::sort(runs.begin(), runs.end(), [](const WidthRun& a, const WidthRun& b) { return a.width < b.width; });
  std::size_t count = 0;
  for (const WidthRun& run : runs) count += run.count;
  const auto at = [&](std::size_t place) {
    auto run = runs.begin();
    for (; place >= run->count; ++run) place -= run->count;
    return run->width;
  };
  return at((count - 1) / 2) / 2 + at(count / 2) / 2;
}

}  // namespace

CopperSurvey SurveyCopper(const CMTraces* traces) {
  CopperSurvey survey;
  if (traces == nullptr) return survey;
  std::vector<WidthRun>& widths = survey.widthsInDigits;
  ForEachRecord(traces->m_pNetArray, [&](const CMTracesNET& header, Index) {
    ForEachPolyline(header, [&](const auto& polyline, WireKind, Index) {
      ++survey.polylines;
      survey.points += static_cast<std::size_t>(polyline.m_pSegArray->GetSize());
      ForEachRecord(polyline.m_pSegArray, [&](const CMTracesSEG& point, Index) {
        if (!point.m_sValue4.View().empty()) ++survey.texts;
        if (!(point.m_dValue4 > 0.0)) return;
        if (widths.empty() || widths.back().width != point.m_dValue4) widths.push_back({point.m_dValue4, 0});
        ++widths.back().count;
      });
    });
  });
  return survey;
}

bool IsDecimalNumber(std::string_view text) {
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  bool hasDigit = false;
  bool hasPoint = false;
  for (const char c : text) {
    if (!IsDigit(c) && (c != '.' || hasPoint)) return false;
    (c == '.' ? hasPoint : hasDigit) = true;
  }
  return hasDigit;
}

std::optional<double> FitWidthStep(const CopperSurvey& survey, double unit) {
  if (survey.widthsInDigits.empty()) return std::nullopt;
  const double median = MedianOf(survey.widthsInDigits);
  for (const double step : kSteps) {
    const double width = Rounded(median * step * unit);
    if (kThinnest <= width && width <= kThickest) return step;
  }
  return std::nullopt;
}

}  // namespace kestrin
