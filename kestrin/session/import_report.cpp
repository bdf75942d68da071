#include "kestrin/session/import_report.h"

#include <utility>

namespace kestrin {
namespace {

/// Some editors put it at the start of a file. It then is part of the first keyword.
constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

}  // namespace

void FileReport::CountSkipped(LineOutcome outcome, std::string_view line) {
  SkippedLines& skipped = skipped_[static_cast<std::size_t>(outcome.Code())];
  ++skipped.count;
  if (skipped.first.size() >= kKeptLines) return;
  std::string reason = outcome.Reason();
  if (linesRead == 1 && line.starts_with(kByteOrderMark))
    reason += ": the line begins with a byte order mark";
  skipped.first.push_back({linesRead, std::move(reason), std::string(line.substr(0, kKeptBytes))});
}

}  // namespace kestrin
