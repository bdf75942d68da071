#include "tool/check.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <string>
#include <vector>

#include "tool/import.h"
#include "tool/json_writer.h"
#include "tool/output.h"
#include "tool/readable_text.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

std::string Text(std::string_view view) { return std::string(view); }

std::vector<SkipCode> CodesIn(const FileReport& file) {
  std::vector<SkipCode> codes;
  for (std::size_t i = 0; i < kSkipCodes.size(); ++i) {
    if (file.Skipped(SkipCode{static_cast<std::uint8_t>(i)}).count > 0)
      codes.push_back(static_cast<SkipCode>(i));
  }
  return codes;
}

void PrintLines(const FileReport& file) {
  struct Row {
    SkipCode code;
    const SkippedLine* line;
  };
  std::vector<Row> rows;
  for (const SkipCode code : CodesIn(file)) {
    for (const SkippedLine& line : file.Skipped(code).first) rows.push_back({code, &line});
  }
  std::sort(rows.begin(), rows.end(),
            [](const Row& a, const Row& b) { return a.line->number < b.line->number; });
  for (const Row& row : rows) {
    std::printf("%s:%" PRId64 ": %s: %s\n    %s\n", PathToTerminal(file.path).c_str(), row.line->number,
                Text(TextOf(row.code).name).c_str(), row.line->reason.c_str(),
                ToTerminal(row.line->text).c_str());
  }
}

void PrintCounts(const FileReport& file) {
  std::printf("%s: %" PRId64 " lines read, %" PRId64 " skipped\n", PathToTerminal(file.path).c_str(),
              file.linesRead, file.Skipped());
  for (const SkipCode code : CodesIn(file)) {
    const SkippedLines& skipped = file.Skipped(code);
    const auto unlisted = skipped.count - static_cast<std::int64_t>(skipped.first.size());
    std::printf(
        "  %s: %" PRId64 "%s\n", Text(TextOf(code).name).c_str(), skipped.count,
        unlisted > 0 ? (" (the first " + std::to_string(skipped.first.size()) + " are listed)").c_str() : "");
  }
}

void WriteSkipped(JsonWriter& json, const FileReport& file) {
  json.StartArray();
  for (const SkipCode code : CodesIn(file)) {
    const SkippedLines& skipped = file.Skipped(code);
    JsonObject group(json);
    group.Member("code", TextOf(code).name).Member("text", TextOf(code).text).Member("count", skipped.count);
    json.Key("lines");
    json.StartArray();
    for (const SkippedLine& line : skipped.first) {
      JsonObject(json)
          .Member("line", line.number)
          .Member("reason", std::string_view(line.reason))
          .Member("text", CString(line.text));
    }
    json.EndArray();
  }
  json.EndArray();
}

void WriteDocument(const std::vector<const FileReport*>& files) {
  JsonWriter json;
  {
    JsonObject document(json);
    json.Key("files");
    json.StartArray();
    for (const FileReport* file : files) {
      JsonObject object(json);
      object.Member("file", std::string_view(PathToUtf8(file->path)))
          .Member("lines", file->linesRead)
          .Member("imported", file->Imported())
          .Member("ignored", file->Ignored())
          .Member("skipped", file->Skipped());
      json.Key("codes");
      WriteSkipped(json, *file);
    }
    json.EndArray();
  }
  json.Finish();
}

}  // namespace

int Check(const ExportSet& files, CheckFormat format) {
  files.CheckReadable();
  CPC_KESTRIN_GET session;
  const std::string stopped = Import(session, files);
  std::vector<const FileReport*> reports;
  for (const FileKind& kind : kFileKinds) {
    const FileReport& file = session.GetReport().Of(kind.file);
    if (file.end != ReadingEnd::kNotRead) reports.push_back(&file);
  }
  if (format == CheckFormat::kJson) {
    WriteDocument(reports);
  } else {
    for (const FileReport* file : reports) PrintLines(*file);
    for (const FileReport* file : reports) PrintCounts(*file);
  }
  if (!stopped.empty()) return FinishOutput(ReportError(stopped, kIncomplete));
  const bool anySkipped =
      std::any_of(reports.begin(), reports.end(), [](auto* file) { return file->Skipped() > 0; });
  return FinishOutput(anySkipped ? kIncomplete : kSuccess);
}

}  // namespace kestrin::tool
