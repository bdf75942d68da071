#pragma once

/// @file
/// Matching the elements of two multisets.

#include <cmath>
#include <cstddef>
#include <cstring>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "kestrin/board/millimetres.h"
#include "tool/diff/sides.h"

namespace kestrin::tool {

/// Something that belongs to a net and has no name of its own.
struct Matchable {
  std::string net;  ///< on the second board
  std::string key;  ///< equal things have equal keys
  std::optional<std::size_t> match;
};

/// Appends the bytes of a value, so that a text can be a key.
template <class T>
void AppendBytes(std::string& text, const T& value) {
  text.append(reinterpret_cast<const char*>(&value), sizeof value);
}

/// A point without a shift, rounded to a nanometre: an export in another unit rounds its coordinates.
[[nodiscard]] inline Point Moved(Point point, Point shift) {
  constexpr double kNanometres = 1e6;
  const auto rounded = [&](double length) {
    return std::abs(length) < kNanometres ? Rounded(std::round(length * kNanometres) / kNanometres) : length;
  };
  return {rounded(point.x - shift.x), rounded(point.y - shift.y)};
}

/// Matches those elements of two lists that have no match yet and have equal keys, each with one other.
template <class Element, class KeyOf>
void Match(std::vector<Element>& before, std::vector<Element>& after, KeyOf keyOf) {
  std::unordered_multimap<std::string_view, std::size_t> free;
  for (std::size_t i = 0; i < after.size(); ++i) {
    if (!after[i].match) free.emplace(keyOf(after[i]), i);
  }
  for (std::size_t i = 0; i < before.size(); ++i) {
    if (before[i].match) continue;
    const auto found = free.find(keyOf(before[i]));
    if (found == free.end()) continue;
    before[i].match = found->second;
    after[found->second].match = i;
    free.erase(found);
  }
}

/// Reports the elements without a match as removed or added, unless their net was.
template <class Element>
void ReportUnmatched(ChangedKind kind, const Sides& sides, const std::vector<Element>& before,
                     const std::vector<Element>& after, Difference& difference) {
  for (const Element& element : before) {
    if (!element.match && !sides.onlyBefore.contains(element.net))
      difference.changes.push_back({kind, element.net, ChangeType::kRemoved, {}});
  }
  for (const Element& element : after) {
    if (!element.match && !sides.onlyAfter.contains(element.net))
      difference.changes.push_back({kind, element.net, ChangeType::kAdded, {}});
  }
}

}  // namespace kestrin::tool
