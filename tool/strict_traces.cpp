#include "tool/strict_traces.h"

#include <exception>

#include "kestrin/framework/input_file.h"
#include "tool/document.h"
#include "tool/readable_text.h"
#include "tool/usage_error.h"

namespace kestrin::tool {
namespace {

std::string WhyStopped(const std::string& path, const StrictParse& parse, const std::string& readError) {
  const auto at = [&](std::int64_t line) { return path + ":" + std::to_string(line) + ": "; };
  if (!readError.empty()) return at(parse.line) + "strict reader stopped: " + readError;
  switch (parse.result) {
    case ParseResult::kAccepted: return {};
    case ParseResult::kExhausted: return at(parse.line + 1) + "strict reader gave up: " + parse.error;
    case ParseResult::kRejected: break;
  }
  const SyntaxError& last = parse.errors.back();
  return at(LineOf(last)) + "strict reader gave up: " + ToTerminal(last.Describe());
}

}  // namespace

StrictTraces ReadStrictly(const ExportSet& files, bool keepsSourceLines, ImportDialog& dialog) {
  const std::string& path = files.PathOf(ImportFile::kTraces);
  const auto start = std::chrono::steady_clock::now();
  InputFile file;
  if (!file.Open(files.ReadablePathOf(ImportFile::kTraces).c_str()))
    throw UsageError("cannot open \"" + path + '"');
  std::string readError;
  const auto read = [&](char* bytes, std::size_t size) -> std::size_t {
    dialog.StillReading();
    try {
      return file.Read(bytes, size);
    } catch (const std::exception& error) {
      readError = error.what();
      return 0;
    }
  };
  StrictTraces traces{.parse = ParseStrictly(read, keepsSourceLines), .stopped = {}};
  if (!readError.empty()) {  // the parser took the read error for the end of the file
    traces.parse.result = ParseResult::kRejected;
    if (!traces.parse.errors.empty() && traces.parse.errors.back().found == 0) traces.parse.errors.pop_back();
  }
  traces.stopped = WhyStopped(path, traces.parse, readError);
  traces.duration = std::chrono::steady_clock::now() - start;
  return traces;
}

void Write(DocumentWriter& document, const StrictTraces& traces) {
  DocumentObject(document)
      .Member("result", static_cast<int>(traces.parse.result))
      .Member("error", std::string_view(traces.parse.error))
      .Member("line", traces.parse.line);
}

std::string Verdict(const StrictParse& parse) {
  const std::size_t errors = parse.errors.size();
  return (parse.result == ParseResult::kAccepted ? "accepted with " : "gave up after ") +
         std::to_string(errors) + (errors == 1 ? " syntax error" : " syntax errors");
}

}  // namespace kestrin::tool
