#include "kestrin/traces/strict/mp_traces_parser.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <limits>
#include <optional>
#include <utility>

#include "kestrin/base/file_handle.h"
#include "kestrin/traces/strict/traces_parser.h"

namespace kestrin {
namespace {

ByteSource BlocksOf(std::FILE* file) {
  return [file](char* bytes, std::size_t size) { return std::fread(bytes, 1, size, file); };
}

/// Reads one line at a time. A program that writes the lines may be waiting for an error message, and lines
/// that a parse leaves unread may be meant for others.
std::size_t ReadLineOfStandardInput(char* bytes, std::size_t size) {
  std::size_t count = 0;
  while (count < size) {
    const int byte = std::getc(stdin);
    if (byte == EOF) break;
    bytes[count++] = static_cast<char>(byte);
    if (byte == '\n') break;
  }
  return count;
}

/// An open file with its parser, which reads ahead of what is parsed.
struct ParsedFile {
  explicit ParsedFile(FileHandle opened) : file(std::move(opened)), parser(BlocksOf(file.get())) {}
  FileHandle file;
  TracesParser parser;
};

/// The state that all objects of the class share.
struct SharedState {
  TracesParser standardInput{ReadLineOfStandardInput};
  std::optional<ParsedFile> file;
  CMTraces* traces = nullptr;  // owned by the caller
  CString error;
  std::int64_t line = 0;
};

SharedState& State() {
  static SharedState state;
  return state;
}

void PrintError(const SyntaxError& error) {
  std::fprintf(stderr, "\n\nSyntax error: parse error\nError Location : %" PRId64 "\n", error.line);
}

}  // namespace

MPTracesParser::MPTracesParser() = default;
MPTracesParser::MPTracesParser(const MPTracesParser&) = default;
MPTracesParser::MPTracesParser(MPTracesParser&&) noexcept = default;
MPTracesParser& MPTracesParser::operator=(const MPTracesParser&) = default;
MPTracesParser& MPTracesParser::operator=(MPTracesParser&&) noexcept = default;

MPTracesParser::MPTracesParser(char* file) { SetFile(file); }

void MPTracesParser::SetFile(char* file) {
  Close();
  // Not OpenToRead, which refuses folders: without a file, standard input would be read.
  FileHandle opened(file == nullptr ? nullptr : std::fopen(file, "rb"));
  if (opened != nullptr) State().file.emplace(std::move(opened));
}

int MPTracesParser::Parse() {
  SharedState& state = State();
  TracesParser& parser = state.file ? state.file->parser : state.standardInput;
  StrictParse parse = parser.Parse(PrintError);
  if (parse.result == ParseResult::kExhausted) std::fprintf(stderr, "%s\n", parse.error.c_str());
  state.error = CString(parse.error);
  if (parse.traces != nullptr) state.traces = parse.traces.release();
  state.line = parse.line;
  return static_cast<int>(parse.result);
}

CMTraces* MPTracesParser::GetTraces() { return State().traces; }

CString MPTracesParser::GetError() { return State().error; }

int MPTracesParser::GetCurrentLineNum() {
  return static_cast<int>(std::min<std::int64_t>(State().line, std::numeric_limits<int>::max()));
}

void MPTracesParser::Close() { State().file.reset(); }

}  // namespace kestrin
