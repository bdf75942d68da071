#include "tool/check.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <string>
#include <vector>

#include "tool/exit_status.h"
#include "tool/import.h"
#include "tool/json_writer.h"
#include "tool/output.h"
#include "tool/readable_text.h"

namespace kestrin::tool {
namespace {

std::string Text(std::string_view view) { return std::string(view); }

std::string CountOfLines(std::int64_t count) {
  return std::to_string(count) + (count == 1 ? " line" : " lines");
}

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
  std::printf("%s: %s read, %" PRId64 " skipped\n", PathToTerminal(file.path).c_str(),
              CountOfLines(file.linesRead).c_str(), file.Skipped());
  for (const SkipCode code : CodesIn(file)) {
    const SkippedLines& skipped = file.Skipped(code);
    const auto unlisted = skipped.count - static_cast<std::int64_t>(skipped.first.size());
    std::printf("  %s: %" PRId64 "%s\n", Text(TextOf(code).name).c_str(), skipped.count,
                unlisted > 0
                    ? (" (only the first " + std::to_string(skipped.first.size()) + " are listed)").c_str()
                    : "");
  }
}

void PrintErrors(const StrictTraces& traces) {
  for (const SyntaxError& error : traces.parse.errors) {
    std::printf("%s:%" PRId64 ": syntax-error: %s\n", PathToTerminal(traces.path).c_str(), LineOf(error),
                ToTerminal(error.Describe()).c_str());
  }
}

void WriteErrors(JsonWriter& json, const StrictTraces& traces) {
  JsonObject object(json);
  object.Member("file", std::string_view(PathToUtf8(traces.path))).Member("parse", traces);
  json.Key("errors");
  json.StartArray();
  for (const SyntaxError& error : traces.parse.errors) {
    JsonObject(json).Member("line", LineOf(error)).Member("reason", CString(error.Describe()));
  }
  json.EndArray();
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

void WriteDocument(const std::vector<const FileReport*>& files, const StrictTraces* strictTraces) {
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
    if (strictTraces != nullptr) {
      json.Key("strict");
      WriteErrors(json, *strictTraces);
    }
  }
  json.Finish();
}

}  // namespace

int Check(const ExportSet& files, CheckFormat format) {
  files.CheckReadable();
  Imported imported;
  const std::string stopped = Import(imported, files, StrictReading::kAlso);
  const StrictTraces* strictTraces = imported.strictTraces ? &*imported.strictTraces : nullptr;
  std::vector<const FileReport*> reports;
  for (const FileKind& kind : kFileKinds) {
    const FileReport& file = imported.session.GetReport().Of(kind.file);
    if (file.end != ReadingEnd::kNotRead) reports.push_back(&file);
  }
  if (format == CheckFormat::kJson) {
    WriteDocument(reports, strictTraces);
  } else {
    for (const FileReport* file : reports) PrintLines(*file);
    if (strictTraces != nullptr) PrintErrors(*strictTraces);
    for (const FileReport* file : reports) PrintCounts(*file);
    if (strictTraces != nullptr) {
      std::printf("%s: strict reader: %s read, %s\n", PathToTerminal(strictTraces->path).c_str(),
                  CountOfLines(strictTraces->parse.line).c_str(), Verdict(strictTraces->parse).c_str());
    }
  }
  if (!stopped.empty()) return FinishOutput(ReportError(stopped, kIncomplete));
  const bool anyError = strictTraces != nullptr && !strictTraces->parse.errors.empty();
  const bool anySkipped =
      std::any_of(reports.begin(), reports.end(), [](auto* file) { return file->Skipped() > 0; });
  return FinishOutput(anySkipped || anyError ? kIncomplete : kSuccess);
}

}  // namespace kestrin::tool
