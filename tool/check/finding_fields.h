#pragma once

/// @file
/// The fields of findings and of reports of files. Their context is the set of files.

#include <string>
#include <string_view>
#include <vector>

#include "kestrin/board/findings.h"
#include "kestrin/traces/strict/syntax_error.h"
#include "tool/export_set.h"
#include "tool/fields.h"
#include "tool/write_fields.h"

namespace kestrin::tool {

/// The lines of a file that were skipped with a code.
struct SkippedGroup {
  SkipCode code;
  const SkippedLines* lines;
};

/// The report of a file of a set.
struct ReadFile {
  ImportFile file;
  const FileReport* report;
  std::vector<SkippedGroup> codes;  ///< of which there are lines
};

[[nodiscard]] inline ReadFile ReadFileOf(const FileReport& report, ImportFile file) {
  ReadFile read{file, &report, {}};
  for (std::size_t i = 0; i < kSkipCodes.size(); ++i) {
    const auto code = static_cast<SkipCode>(i);
    if (report.Skipped(code).count > 0) read.codes.push_back({code, &report.Skipped(code)});
  }
  return read;
}

[[nodiscard]] constexpr std::string_view WordOf(Severity severity) {
  constexpr std::array<std::string_view, 3> kWords{"error", "warning", "note"};
  return kWords[static_cast<std::size_t>(severity)];
}

[[nodiscard]] constexpr std::string_view WordOf(ReadingEnd end) {
  constexpr std::array<std::string_view, 4> kWords{"not-read", "not-opened", "stopped", "complete"};
  return kWords[static_cast<std::size_t>(end)];
}

template <>
inline constexpr auto kFields<FindingPlace> = std::tuple{
    Field{
        "file", "The path of the file.",
        [](const ExportSet& files, const FindingPlace& place) { return PathText{files.PathOf(place.file)}; }},
    Field{"line", "The number of the line; 0 for the file as a whole.", &FindingPlace::line},
};

template <>
inline constexpr auto kFields<Finding> = std::tuple{
    Field{"severity", "How bad it is: \"error\", \"warning\" or \"note\".",
          [](const Finding& finding) { return WordOf(KindOf(finding.code).severity); }},
    Field{"code", "What is wrong, short and stable: \"unknown-pin\".",
          [](const Finding& finding) { return KindOf(finding.code).name; }},
    Field{"message", "A sentence with the names in it.", &Finding::message},
    Field{"at", "The records that it is about.", &Finding::at},
};

template <>
inline constexpr auto kFields<SkippedLine> = std::tuple{
    Field{"line", "The number of the line.", &SkippedLine::number},
    Field{"reason", "Why it was skipped, in a sentence.", &SkippedLine::reason},
    Field{"text", "The beginning of the line.", &SkippedLine::text},
};

template <>
inline constexpr auto kFields<SyntaxError> = std::tuple{
    Field{"line", "The number of the line.", [](const SyntaxError& error) { return error.line + 1; }},
    Field{"reason", "What was found and what was expected.",
          [](const SyntaxError& error) { return error.Describe(); }},
};

template <>
inline constexpr auto kFields<SkippedGroup> = std::tuple{
    Field{"code", "Why lines were skipped, short and stable: \"unknown-record\".",
          [](const SkippedGroup& group) { return TextOf(group.code).name; }},
    Field{"text", "The reason in a sentence.",
          [](const SkippedGroup& group) { return TextOf(group.code).text; }},
    Field{"count", "How many lines were skipped.",
          [](const SkippedGroup& group) { return group.lines->count; }},
    Field{"lines", "The first of them.",
          [](const SkippedGroup& group) -> const std::vector<SkippedLine>& { return group.lines->first; }},
};

template <>
inline constexpr auto kFields<ReadFile> = std::tuple{
    Field{"file", "The path.",
          [](const ExportSet& files, const ReadFile& read) { return PathText{files.PathOf(read.file)}; }},
    Field{"lines", "The number of lines read.", [](const ReadFile& read) { return read.report->linesRead; }},
    Field{"imported", "How many lines were imported.",
          [](const ReadFile& read) { return read.report->Imported(); }},
    Field{"ignored", "How many lines have nothing to import.",
          [](const ReadFile& read) { return read.report->Ignored(); }},
    Field{"skipped", "How many lines were skipped.",
          [](const ReadFile& read) { return read.report->Skipped(); }},
    Field{"end", "How the reading ended: \"complete\", \"stopped\" or \"not-opened\".",
          [](const ReadFile& read) { return WordOf(read.report->end); }},
};

}  // namespace kestrin::tool
