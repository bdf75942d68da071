#include "tool/draw/near_names.h"

#include <algorithm>
#include <cstddef>
#include <numeric>
#include <utility>

#include "kestrin/base/characters.h"

namespace kestrin::tool::draw {
namespace {

constexpr std::size_t kLongest = 64;  // of a name that is compared; the time is quadratic
constexpr std::size_t kMostNames = 3;

/// How many characters to insert, remove or exchange to make one name the other. Letter case counts little.
double DistanceBetween(std::string_view a, std::string_view b) {
  constexpr double kOtherCase = 0.1;
  std::vector<double> row(b.size() + 1);
  std::iota(row.begin(), row.end(), 0.0);
  for (std::size_t i = 0; i < a.size(); ++i) {
    double diagonal = std::exchange(row[0], static_cast<double>(i + 1));
    for (std::size_t j = 0; j < b.size(); ++j) {
      const bool isSameLetter = ToUpper(a[i]) == ToUpper(b[j]);
      const double change = a[i] == b[j] ? 0.0 : isSameLetter ? kOtherCase : 1.0;
      const double best = std::min({row[j] + 1.0, row[j + 1] + 1.0, diagonal + change});
      diagonal = std::exchange(row[j + 1], best);
    }
  }
  return row.back();
}

}  // namespace

std::string NoSuchName(std::string_view what, std::string_view wrong,
                       const std::vector<std::string_view>& names) {
  std::string message = "no " + std::string(what) + " \"" + std::string(wrong) + '"';
  if (wrong.size() > kLongest) return message;
  const double farthest = std::max(1.0, static_cast<double>(wrong.size()) / 2.0);
  std::vector<std::pair<double, std::string_view>> closest;
  for (const std::string_view name : names) {
    if (name.size() > kLongest) continue;
    const double distance = DistanceBetween(wrong, name);
    if (distance <= farthest) closest.emplace_back(distance, name);
  }
  std::stable_sort(closest.begin(), closest.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  closest.resize(std::min(closest.size(), kMostNames));
  if (closest.empty()) return message;
  message += "; did you mean ";
  for (std::size_t i = 0; i < closest.size(); ++i) {
    if (i > 0) message += i + 1 == closest.size() ? " or " : ", ";
    message += '"' + std::string(closest[i].second) + '"';
  }
  return message + '?';
}

}  // namespace kestrin::tool::draw
