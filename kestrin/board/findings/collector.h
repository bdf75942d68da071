#pragma once

/// @file
/// Collecting findings.

#include <array>
#include <string>
#include <unordered_set>
#include <utility>
#include <vector>

#include "kestrin/board/findings.h"

namespace kestrin {

/// A name in a message.
[[nodiscard]] inline std::string Quoted(std::string_view name) { return "\"" + std::string(name) + "\""; }

/// Counts findings and keeps the first of each code.
class Collector {
 public:
  explicit Collector(const CheckedSet& set) : set_(set) {}

  /// Adds a finding. The action makes it; it is called only if the finding is kept.
  template <class Make>
  void Add(FindingCode code, Make make) {
    const auto index = static_cast<std::size_t>(code);
    if (++counts_[index] > Findings::kKept) return;
    kept_[index].push_back(make());
    kept_[index].back().code = code;
  }

  /// Adds as many findings as there are counted, of which the first are given.
  void AddAll(FindingCode code, std::vector<Finding> first, std::size_t count);

  /// The line that made a record.
  [[nodiscard]] FindingPlace PlaceOf(ImportFile file, const void* record) const;

  /// Says that a file is not what it should be, or not whole. Then nothing is compared with it.
  void Doubt(ImportFile file) { isDoubtful_[static_cast<std::size_t>(file)] = true; }
  [[nodiscard]] bool Trusts(ImportFile file) const { return !isDoubtful_[static_cast<std::size_t>(file)]; }

  [[nodiscard]] Findings Finish();

 private:
  const CheckedSet& set_;
  std::array<bool, kImportFileCount> isDoubtful_{};
  std::array<std::vector<Finding>, kFindingKinds.size()> kept_;
  std::array<std::size_t, kFindingKinds.size()> counts_{};
};

/// Checks whether names of a kind match. If most do not, the files probably do not belong together, and one
/// finding says so instead of one for each name.
class NameMatches {
 public:
  /// The kind is worded like "pins of nets", the target like "a component".
  NameMatches(FindingCode code, std::string_view kind, std::string_view target)
      : code_(code), kind_(kind), target_(target) {}

  /// A name that matches, which may have matched before.
  void Match(std::string_view name) { matched_.insert(name); }

  /// A name that matches nothing. The action makes its finding. The name must outlive this object.
  template <class Make>
  void Miss(std::string_view name, Make make) {
    missed_.insert(name);
    if (++misses_ <= Findings::kKept) first_.push_back(make());
  }

  /// Adds the findings.
  void Finish(Collector& findings) &&;

 private:
  FindingCode code_;
  std::string_view kind_;
  std::string_view target_;
  std::unordered_set<std::string_view> matched_;
  std::unordered_set<std::string_view> missed_;
  std::size_t misses_ = 0;
  std::vector<Finding> first_;
};

}  // namespace kestrin
