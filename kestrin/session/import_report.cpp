#include "kestrin/session/import_report.h"

namespace kestrin {

/// Counts the line that was read last.
void FileReport::CountLine(LineOutcome outcome, std::string_view line) {
  ++counts_[static_cast<std::size_t>(outcome.GetKind())];
  if (outcome.GetKind() != LineOutcome::Kind::kSkipped) return;
  SkippedLines& skipped = skipped_[static_cast<std::size_t>(outcome.Code())];
  ++skipped.count;
  if (skipped.first.size() < kKeptLines) {
    skipped.first.push_back({linesRead, outcome.Reason(), std::string(line.substr(0, kKeptBytes))});
  }
}

}  // namespace kestrin
