#include <algorithm>

#include "tool/check/finding_fields.h"
#include "tool/check/print.h"
#include "tool/document.h"
#include "tool/json_writer.h"
#include "tool/readable_text.h"

namespace kestrin::tool {
namespace {

constexpr int kVersion = 2;

void WriteFile(JsonWriter& json, const Checked& checked, ImportFile file) {
  const ReadFile read = ReadFileOf(checked.imported.ReportOf(file), file);
  DocumentObject object(json);
  WriteFields(json, checked.imported.files, read);
  if (read.report->end == ReadingEnd::kStopped) {
    object.Member("error", std::string_view(PathToUtf8(checked.stopped)));
  }
  WriteList(json, "codes", read.codes, [&](const SkippedGroup& group) {
    if (checked.Reports(TextOf(group.code).name)) WriteValue(json, checked.imported.files, group);
  });
}

/// The last line that the strict reader read, counted from 1 as everywhere. The parser counts line ends, of
/// which the last may be missing.
std::int64_t LastLine(const Checked& checked) {
  const StrictParse& parse = checked.imported.strictTraces->parse;
  if (parse.result == ParseResult::kAccepted)
    return std::max(parse.line, checked.imported.ReportOf(ImportFile::kTraces).linesRead);
  return parse.errors.empty() ? parse.line + 1 : LineOf(parse.errors.back());
}

void WriteStrict(JsonWriter& json, const Checked& checked, const StrictTraces& strict) {
  json.Key("strict");
  DocumentObject object(json);
  object.Member("file", std::string_view(PathToUtf8(checked.imported.files.PathOf(ImportFile::kTraces))))
      .Member("result", static_cast<int>(strict.parse.result))
      .Member("error", strict.parse.result == ParseResult::kExhausted ? std::string_view(strict.parse.error)
                                                                      : std::string_view())
      .Member("line", LastLine(checked));
  WriteList(json, "errors", strict.parse.errors,
            [&](const SyntaxError& error) { WriteValue(json, checked.imported.files, error); });
}

}  // namespace

void PrintProblemsAsJson(const Checked& checked) {
  JsonWriter json;
  json.StartObject();
  json.Key("format");
  json.Utf8("kestrin-check");
  json.Key("version");
  json.Int(kVersion);
  WriteList(json, "files", checked.imported.FilesRead(),
            [&](ImportFile file) { WriteFile(json, checked, file); });
  if (const auto& strict = checked.imported.strictTraces) WriteStrict(json, checked, *strict);
  WriteList(json, "findings", checked.findings.list, [&](const Finding& finding) {
    if (checked.Reports(KindOf(finding.code).name)) WriteValue(json, checked.imported.files, finding);
  });
  json.Key("counts");
  json.StartObject();
  for (std::size_t i = 0; i < kFindingKinds.size(); ++i) {
    const FindingKind& kind = kFindingKinds[i];
    if (checked.findings.counts[i] == 0 || !checked.Reports(kind.name)) continue;
    json.Key(kind.name.data());
    json.Int(static_cast<std::int64_t>(checked.findings.counts[i]));
  }
  json.EndObject();
  json.EndObject();
  json.Finish();
}

}  // namespace kestrin::tool
