#include "tool/check/problems.h"

#include <algorithm>
#include <optional>

namespace kestrin::tool {
namespace {

constexpr std::string_view kSyntaxError = "syntax-error";

/// The codes of a check and the severities of those that are not findings.
template <class Action>
void ForEachCode(Action action) {
  action(kSyntaxError);
  for (const FindingKind& kind : kFindingKinds) action(kind.name);
  for (const SkipCodeText& skip : kSkipCodes) action(skip.name);
}

/// Whether the lines of a file belong into another file. Its skipped lines are then not listed.
bool IsWrongFile(const Findings& findings, ImportFile file) {
  return std::any_of(findings.list.begin(), findings.list.end(), [&](const Finding& finding) {
    return finding.code == FindingCode::kWrongFile && finding.at.front().file == file;
  });
}

std::optional<ProblemGroup> SyntaxErrorsOf(const Checked& checked) {
  const auto& strict = checked.imported.strictTraces;
  if (!strict || strict->parse.errors.empty()) return std::nullopt;
  ProblemGroup group{.severity = Severity::kError,
                     .code = kSyntaxError,
                     .verdict = "the Traces file breaks its grammar",
                     .count = strict->parse.errors.size(),
                     .first = {}};
  for (const SyntaxError& error : strict->parse.errors) {
    if (group.first.size() == Findings::kKept) break;
    group.first.push_back({.file = checked.imported.files.PathOf(ImportFile::kTraces),
                           .line = LineOf(error),
                           .message = error.Describe(),
                           .text = {}});
  }
  return group;
}

ProblemGroup SkippedLinesOf(const Checked& checked, SkipCode code) {
  ProblemGroup group{.severity = Severity::kWarning,
                     .code = TextOf(code).name,
                     .verdict = "lines were skipped",
                     .first = {}};
  for (const FileKind& kind : kFileKinds) {
    const FileReport& report = checked.imported.ReportOf(kind.file);
    if (checked.Reports("wrong-file") && IsWrongFile(checked.findings, kind.file)) continue;
    const SkippedLines& skipped = report.Skipped(code);
    group.count += static_cast<std::size_t>(skipped.count);
    for (const SkippedLine& line : skipped.first) {
      group.first.push_back({.file = checked.imported.files.PathOf(kind.file),
                             .line = line.number,
                             .message = line.reason,
                             .text = line.text});
    }
  }
  return group;
}

/// " (also line 12)", for the places after the first.
std::string OtherPlacesOf(const Checked& checked, const Finding& finding) {
  constexpr std::size_t kShown = 3;
  std::string text;
  for (std::size_t i = 1; i < finding.at.size(); ++i) {
    const FindingPlace& place = finding.at[i];
    if (place.line == 0) continue;
    if (i > kShown) return text + ", ...)";
    text += text.empty() ? " (also " : ", ";
    if (place.file != finding.at.front().file) text += checked.imported.files.PathOf(place.file) + " ";
    text += "line " + std::to_string(place.line);
  }
  return text.empty() ? text : text + ')';
}

ProblemGroup FindingsOf(const Checked& checked, FindingCode code) {
  const FindingKind& kind = KindOf(code);
  ProblemGroup group{.severity = kind.severity,
                     .code = kind.name,
                     .verdict = kind.verdict,
                     .count = checked.findings.CountOf(code),
                     .first = {}};
  for (const Finding& finding : checked.findings.list) {
    if (finding.code != code) continue;
    const FindingPlace& place = finding.at.front();
    group.first.push_back({.file = checked.imported.files.PathOf(place.file),
                           .line = place.line,
                           .message = finding.message + OtherPlacesOf(checked, finding),
                           .text = {}});
  }
  return group;
}

}  // namespace

std::vector<ProblemGroup> ProblemsOf(const Checked& checked) {
  std::vector<ProblemGroup> groups;
  const auto add = [&](ProblemGroup group) {
    if (group.count > 0 && checked.Reports(group.code)) groups.push_back(std::move(group));
  };
  if (auto errors = SyntaxErrorsOf(checked)) add(std::move(*errors));
  for (std::size_t i = 0; i < kFindingKinds.size(); ++i)
    add(FindingsOf(checked, static_cast<FindingCode>(i)));
  for (std::size_t i = 0; i < kSkipCodes.size(); ++i) add(SkippedLinesOf(checked, static_cast<SkipCode>(i)));
  std::stable_sort(groups.begin(), groups.end(),
                   [](const ProblemGroup& a, const ProblemGroup& b) { return a.severity < b.severity; });
  return groups;
}

bool IsCode(std::string_view code) {
  bool isCode = false;
  ForEachCode([&](std::string_view known) { isCode = isCode || known == code; });
  return isCode;
}

std::string AllCodes() {
  std::string codes;
  ForEachCode([&](std::string_view code) { codes += (codes.empty() ? "" : ", ") + std::string(code); });
  return codes;
}

}  // namespace kestrin::tool
