#include "kestrin/session/import_report.h"

namespace kestrin {

void FileReport::CountSkipped(LineOutcome outcome, std::string_view line) {
  SkippedLines& skipped = skipped_[static_cast<std::size_t>(outcome.Code())];
  ++skipped.count;
  if (skipped.first.size() < kKeptLines) {
    skipped.first.push_back({linesRead, outcome.Reason(), std::string(line.substr(0, kKeptBytes))});
  }
}

}  // namespace kestrin
