#include "kestrin/board/findings/collector.h"

#include <algorithm>
#include <iterator>

#include "kestrin/records/source_lines.h"

namespace kestrin {

void Collector::AddAll(FindingCode code, std::vector<Finding> first, std::size_t count) {
  const auto index = static_cast<std::size_t>(code);
  for (Finding& finding : first) {
    if (kept_[index].size() == Findings::kKept) break;
    finding.code = code;
    kept_[index].push_back(std::move(finding));
  }
  counts_[index] += count;
}

FindingPlace Collector::PlaceOf(ImportFile file, const void* record) const {
  const SourceLines* lines = set_.lines[static_cast<std::size_t>(file)];
  return {file, lines == nullptr ? 0 : lines->LineOf(record)};
}

Findings Collector::Finish() {
  Findings findings{.list = {}, .counts = counts_};
  for (std::vector<Finding>& kept : kept_) {
    std::move(kept.begin(), kept.end(), std::back_inserter(findings.list));
  }
  return findings;
}

void NameMatches::Finish(Collector& findings) && {
  const std::size_t total = matched_.size() + missed_.size();
  const bool isOneMistake = missed_.size() > 1 && matched_.size() < missed_.size();
  if (!isOneMistake) return findings.AddAll(code_, std::move(first_), misses_);
  Finding finding = std::move(first_.front());
  finding.message = std::to_string(missed_.size()) + " of " + std::to_string(total) + ' ' +
                    std::string(kind_) + " do not name " + std::string(target_) +
                    "; do the files belong to the same board?";
  findings.AddAll(FindingCode::kNoMatch, {std::move(finding)}, 1);
}

}  // namespace kestrin
