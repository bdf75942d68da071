#include <algorithm>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "kestrin/board/findings/checks.h"
#include "kestrin/board/polylines.h"
#include "kestrin/board/widths.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {
namespace {

/// The points that name a via which does not exist.
struct UnknownVia {
  std::size_t order = 0;  // of the first point
  std::size_t count = 0;
  const CMTracesSEG* first = nullptr;
};

}  // namespace

void CheckVias(const CheckedSet& set, const Board& board, Collector& findings) {
  const BoardModels& models = set.models;
  if (models.traces == nullptr || (models.geometry == nullptr && models.tech == nullptr)) return;
  std::map<std::string, UnknownVia, std::less<>> unknown;
  std::map<std::string_view, bool> known;
  for (const ViaPadstack& via : board.viaPadstacks) known.emplace(via.name, false);
  std::string_view last;  // most points repeat the name of the last one
  ForEachRecord(models.traces->m_pNetArray, [&](const CMTracesNET& header, Index) {
    ForEachPolyline(header, [&](const auto& polyline, WireKind, Index) {
      ForEachRecord(polyline.m_pSegArray, [&](const CMTracesSEG& point, Index) {
        const std::string_view name = ComparedName(point.m_sValue4.View());
        if (name.empty() || name == last || IsDecimalNumber(name)) return;
        if (const auto found = known.find(name); found != known.end()) {
          found->second = true;
          last = name;
          return;
        }
        UnknownVia& via = unknown[std::string(name)];
        if (via.count++ == 0) {
          via.first = &point;
          via.order = unknown.size();
        }
      });
    });
  });
  NameMatches matches(FindingCode::kUnknownVia, "names of vias on tracks", "a via");
  for (const auto& [name, isUsed] : known) {
    if (isUsed) matches.Match(name);
  }
  using Unknown = std::pair<std::string_view, UnknownVia>;
  std::vector<Unknown> inFileOrder(unknown.begin(), unknown.end());
  std::sort(inFileOrder.begin(), inFileOrder.end(),
            [](const Unknown& a, const Unknown& b) { return a.second.order < b.second.order; });
  for (const Unknown& entry : inFileOrder) {
    const std::string_view name = entry.first;
    const UnknownVia& via = entry.second;
    matches.Miss(name, [&] {
      return Finding{.message = Quoted(name) + " is neither a width nor a via; " + std::to_string(via.count) +
                                (via.count == 1 ? " point of a track names it" : " points of tracks name it"),
                     .at = {findings.PlaceOf(ImportFile::kTraces, via.first)}};
    });
  }
  std::move(matches).Finish(findings);
}

void CheckNetsOfFills(const CheckedSet& set, const Board& board, Collector& findings) {
  if (set.models.traces == nullptr) return;
  std::map<std::string_view, bool> nets;
  for (const Net& net : board.nets) {
    if (!net.netRecords.empty() || !net.headers.empty()) nets.emplace(net.name, true);
  }
  NameMatches matches(FindingCode::kUnknownFillNet, "nets of fills", "a net");
  ForEachRecord(set.models.traces->m_pFilArray, [&](const CMTracesFIL& fill, Index) {
    const std::string_view name = ComparedName(fill.m_sName1.View());
    if (nets.contains(name)) return matches.Match(name);
    matches.Miss(name, [&] {
      return Finding{.message = "a fill names net " + Quoted(name) + ", which no file has",
                     .at = {findings.PlaceOf(ImportFile::kTraces, &fill)}};
    });
  });
  std::move(matches).Finish(findings);
}

void CheckReading(const CheckedSet& /*set*/, const Board& board, Collector& findings) {
  constexpr std::size_t kEnoughToTell = 4;
  const Reading& reading = board.reading;
  if (reading.isConfirmed || reading.pinsCounted < kEnoughToTell) return;
  findings.Add(FindingCode::kUnconfirmedReading, [&] {
    const bool fits = reading.pinsTouching >= reading.pinsCounted - reading.pinsTouching;
    const bool areEnough = reading.pinsTouching >= kEnoughToTell;
    return Finding{
        .message = "the placement of components is a guess: " + std::to_string(reading.pinsTouching) +
                   " of " + std::to_string(reading.pinsCounted) + " pins touch copper of their net" +
                   (!fits       ? ""
                    : areEnough ? ", and another reading fits as well"
                                : ", too few to be sure"),
        .at = {{ImportFile::kNeutral}, {ImportFile::kTraces}}};
  });
}

}  // namespace kestrin
