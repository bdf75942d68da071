#include "tool/check/check.h"

#include <algorithm>
#include <array>
#include <future>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kestrin/framework/exceptions.h"
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

/// Looks for misread numbers while the files are imported, in another thread if there can be one.
class NumberSearch {
 public:
  explicit NumberSearch(const ExportSet& files) {
    for (const FileKind& kind : kFileKinds) {
      if (files.Has(kind.file)) paths_.emplace_back(kind.file, files.ReadablePathOf(kind.file));
    }
    found_ = std::async([this] { return Find(); });
  }

  [[nodiscard]] std::array<std::optional<MisreadNumbers>, kImportFileCount> Found() { return found_.get(); }

 private:
  [[nodiscard]] std::array<std::optional<MisreadNumbers>, kImportFileCount> Find() const {
    std::array<std::optional<MisreadNumbers>, kImportFileCount> found;
    for (const auto& [file, path] : paths_) {
      try {
        found[static_cast<std::size_t>(file)] = FindMisreadNumbers(file, path, Findings::kKept);
      } catch (const CFileException&) {
        found[static_cast<std::size_t>(file)].emplace();  // the import says that the file cannot be read
      }
    }
    return found;
  }

  std::vector<std::pair<ImportFile, std::string>> paths_;
  std::future<std::array<std::optional<MisreadNumbers>, kImportFileCount>> found_;
};

void CheckCodes(const std::vector<std::string>& codes) {
  for (const std::string& code : codes) {
    if (!IsCode(code)) throw UsageError("there is no code " + code + "; the codes are " + AllCodes());
  }
}

}  // namespace

CheckedSet SetOf(const Imported& imported) {
  CheckedSet set = CheckedSetOf(imported.session);
  if (imported.strictTraces) {
    set.models.traces = imported.Traces();
    set.lines[static_cast<std::size_t>(ImportFile::kTraces)] = imported.strictTraces->parse.lines.get();
  }
  return set;
}

int Check(const ExportSet& files, const CheckWords& words) {
  CheckCodes(words.allowed);
  Imported imported(files);
  imported.files.Open();
  imported.session.KeepSourceLines(true);
  NumberSearch numbers(imported.files);
  std::string stopped = Import(imported, StrictReading::kAlso);
  const Board board = BoardOf(imported);
  CheckedSet set = SetOf(imported);
  set.misread = numbers.Found();
  const Checked checked{.imported = imported,
                        .findings = FindFaults(set, board),
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
