#pragma once

/// @file
/// What the digits of texts become.

#include <map>
#include <set>
#include <string>
#include <string_view>

#include "tool/anonymise/keyed_hash.h"

namespace kestrin::tool {

/// Runs of letters and digits that occur in texts for people alone, and what their digits become. A run that
/// occurs elsewhere, too, keeps its digits everywhere: there it may be a number or part of a name.
///
/// Add all runs of texts, then those elsewhere, then choose. Runs are in capitals.
class DigitMap {
 public:
  void AddOfText(std::string_view run) { images_.emplace(run, std::string()); }
  void AddElsewhere(std::string_view run);
  void Choose(const KeyedHash& hash);

  /// What a run becomes, with the letters of the original; the run itself if it keeps its digits.
  [[nodiscard]] std::string_view ImageOf(std::string_view run) const;
  template <class Action>
  void ForEach(Action action) const {
    for (const auto& [run, image] : images_) action(run, image);
  }
  [[nodiscard]] std::size_t Size() const { return images_.size(); }

 private:
  void FindPatterns();
  [[nodiscard]] std::string Image(const KeyedHash& hash, const std::string& run) const;

  std::map<std::string, std::string, std::less<>> images_;
  std::set<std::string, std::less<>> patterns_;  // the runs of texts with each digit replaced by 0
  std::set<std::string, std::less<>> taken_;     // runs elsewhere that an image could equal, and images
};

/// The run with other digits, the same for the same key and run.
[[nodiscard]] std::string WithOtherDigits(const KeyedHash& hash, std::string_view run,
                                          std::uint64_t attempt = 0);

}  // namespace kestrin::tool
