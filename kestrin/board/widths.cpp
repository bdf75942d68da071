#include "kestrin/board/widths.h"

#include <algorithm>
#include <utility>
#include <vector>

#include "kestrin/base/characters.h"
#include "kestrin/board/millimetres.h"
#include "kestrin/board/records.h"
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

/// A width, and the number of consecutive points with it.
struct Run {
  double width;
  std::size_t count;
};

std::vector<Run> WidthsInDigits(const CMTraces& traces) {
  std::vector<Run> runs;
  const auto gather = [&](const auto& polyline, std::size_t) {
    ForEachRecord(polyline.m_pSegArray, [&](const CMTracesSEG& point, std::size_t) {
      if (!(point.m_dValue4 > 0.0)) return;
      if (runs.empty() || runs.back().width != point.m_dValue4) runs.push_back({point.m_dValue4, 0});
      ++runs.back().count;
    });
  };
  ForEachRecord(traces.m_pNetArray, [&](const CMTracesNET& net, std::size_t) {
    ForEachRecord(net.m_pWirArray, gather);
    ForEachRecord(net.m_pAntWirArray, gather);
    ForEachRecord(net.m_pAntIncArray, gather);
  });
  return runs;
}

/// The median; of an even number of widths, the mean of the two in the middle.
double MedianOf(std::vector<Run> runs) {
  std::sort(runs.begin(), runs.end(), [](const Run& a, const Run& b) { return a.width < b.width; });
  std::size_t count = 0;
  for (const Run& run : runs) count += run.count;
  const auto at = [&](std::size_t place) {
    auto run = runs.begin();
    for (; place >= run->count; ++run) place -= run->count;
    return run->width;
  };
  return at((count - 1) / 2) / 2 + at(count / 2) / 2;
}

}  // namespace

bool IsDecimalNumber(std::string_view text) {
  if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
  const auto points = std::count(text.begin(), text.end(), '.');
  const auto digits = std::count_if(text.begin(), text.end(), [](char c) { return IsDigit(c); });
  return digits > 0 && points <= 1 && static_cast<std::size_t>(digits + points) == text.size();
}

std::optional<double> FitWidthStep(const CMTraces& traces, double unit) {
  std::vector<Run> widths = WidthsInDigits(traces);
  if (widths.empty()) return std::nullopt;
  const double median = MedianOf(std::move(widths));
  for (const double step : kSteps) {
    const double width = Rounded(median * step * unit);
    if (kThinnest <= width && width <= kThickest) return step;
  }
  return std::nullopt;
}

}  // namespace kestrin
