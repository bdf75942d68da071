#include "tool/check/check.h"

#include <algorithm>
#include <array>
#include <optional>

#include "tool/board.h"
#include "tool/check/print.h"
#include "tool/exit_status.h"
#include "tool/output.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

/// The least severity that fails, as --fail-on names it; empty for none.
std::optional<Severity> FailingSeverity(const std::string& word) {
  if (word == "error") return Severity::kError;
  if (word == "warning") return Severity::kWarning;
  if (word == "note") return Severity::kNote;
  return std::nullopt;
}

CheckedSet SetOf(const Imported& imported) {
  CheckedSet set = CheckedSetOf(imported.session);
  if (imported.strictTraces) {
    set.models.traces = imported.Traces();
    set.lines[static_cast<std::size_t>(ImportFile::kTraces)] = imported.strictTraces->parse.lines.get();
  }
  return set;
}

void CheckCodes(const std::vector<std::string>& codes) {
  for (const std::string& code : codes) {
    if (!IsCode(code)) throw UsageError("there is no code " + code + "; the codes are " + AllCodes());
  }
}

}  // namespace

int Check(const ExportSet& files, const CheckWords& words) {
  CheckCodes(words.allowed);
  Imported imported(files);
  imported.session.KeepSourceLines(true);
  std::string stopped = Import(imported, StrictReading::kAlso);
  const Checked checked{.imported = imported,
                        .findings = FindFaults(SetOf(imported), BoardOf(imported)),
                        .stopped = std::move(stopped),
                        .allowed = {words.allowed.begin(), words.allowed.end()}};
  if (words.format == "json") {
    PrintProblemsAsJson(checked);
  } else if (!words.quiet) {
    if (words.ignored) PrintIgnoredLines(imported);
    PrintProblems(checked);
  }
  if (!checked.stopped.empty()) ReportError(checked.stopped, kIncomplete);
  const auto failing = FailingSeverity(words.failOn);
  const std::vector<ProblemGroup> groups = ProblemsOf(checked);
  const bool fails =
      failing && (!checked.stopped.empty() || (!groups.empty() && groups.front().severity <= *failing));
  return FinishOutput(fails ? kIncomplete : kSuccess);
}

}  // namespace kestrin::tool
