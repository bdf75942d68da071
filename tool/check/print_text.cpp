#include <algorithm>
#include <array>
#include <cinttypes>
#include <cstdio>

#include "tool/check/print.h"
#include "tool/readable_text.h"

namespace kestrin::tool {
namespace {

constexpr std::size_t kShown = 20;  // of each code

struct SeverityWord {
  const char* one;
  const char* many;
};
constexpr SeverityWord kSeverityWords[] = {{"error", "errors"}, {"warning", "warnings"}, {"note", "notes"}};

const SeverityWord& WordsOf(Severity severity) { return kSeverityWords[static_cast<std::size_t>(severity)]; }

void Print(const ProblemGroup& group) {
  const std::string code(group.code);
  const std::size_t shown = std::min(kShown, group.first.size());
  for (std::size_t i = 0; i < shown; ++i) {
    const Problem& problem = group.first[i];
    const std::string line = problem.line == 0 ? "" : std::to_string(problem.line) + ":";
    std::printf("%s:%s %s: %s [%s]\n", PathToTerminal(problem.file).c_str(), line.c_str(),
                WordsOf(group.severity).one, ToTerminal(problem.message).c_str(), code.c_str());
    if (!problem.text.empty()) std::printf("    %s\n", ToTerminal(problem.text).c_str());
  }
  if (group.count > shown) std::printf("... and %zu more [%s]\n", group.count - shown, code.c_str());
}

void PrintFile(const Imported& imported, ImportFile file) {
  const FileReport& report = imported.ReportOf(file);
  std::printf("%s: %" PRId64 " line%s read, %" PRId64 " skipped\n",
              PathToTerminal(imported.files.PathOf(file)).c_str(), report.linesRead,
              report.linesRead == 1 ? "" : "s", report.Skipped());
}

/// The group that says best what is wrong: one of the worst, but first those that explain others.
const ProblemGroup& CauseOf(const std::vector<ProblemGroup>& groups) {
  for (const FindingCode code :
       {FindingCode::kWrongFile, FindingCode::kNothingImported, FindingCode::kNoMatch}) {
    const auto found = std::find_if(groups.begin(), groups.end(), [&](const ProblemGroup& group) {
      return group.code == KindOf(code).name;
    });
    if (found != groups.end() && found->severity == groups.front().severity) return *found;
  }
  return groups.front();
}

/// "3 errors, 12 warnings: nets and components do not agree".
std::string VerdictOf(const Checked& checked, const std::vector<ProblemGroup>& groups) {
  std::array<std::size_t, std::size(kSeverityWords)> counts{};
  for (const ProblemGroup& group : groups) counts[static_cast<std::size_t>(group.severity)] += group.count;
  std::string text;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    if (counts[i] == 0) continue;
    const SeverityWord& word = kSeverityWords[i];
    text += (text.empty() ? "" : ", ") + std::to_string(counts[i]) + ' ' +
            (counts[i] == 1 ? word.one : word.many);
  }
  if (!checked.stopped.empty()) return (text.empty() ? "" : text + ": ") + "the import stopped early";
  if (groups.empty()) return "no problem found";
  return text + ": " + std::string(CauseOf(groups).verdict);
}

}  // namespace

void PrintProblems(const Checked& checked) {
  const std::vector<ProblemGroup> groups = ProblemsOf(checked);
  for (const ProblemGroup& group : groups) Print(group);
  for (const ImportFile file : checked.imported.FilesRead()) PrintFile(checked.imported, file);
  if (const auto& strict = checked.imported.strictTraces) {
    std::printf("%s: strict reader: %s\n",
                PathToTerminal(checked.imported.files.PathOf(ImportFile::kTraces)).c_str(),
                Verdict(strict->parse).c_str());
  }
  std::puts(VerdictOf(checked, groups).c_str());
}

}  // namespace kestrin::tool
