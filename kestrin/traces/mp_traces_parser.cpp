#include "kestrin/traces/mp_traces_parser.h"

#include <algorithm>
#include <cinttypes>
#include <cstdio>
#include <limits>
#include <memory>
#include <utility>

#include "kestrin/traces/strict/strict_parser.h"

namespace kestrin {
namespace {

struct FileCloser {
  // NOLINTNEXTLINE(cppcoreguidelines-owning-memory): the owner's own deleter
  void operator()(std::FILE* file) const noexcept { std::fclose(file); }
};

/// What all parsers of the process share.
struct SharedState {
  std::unique_ptr<std::FILE, FileCloser> file;
  CMTraces* traces = nullptr;  // the caller's from the moment it is made
  CString error;
  std::int64_t line = 0;
};

SharedState& State() {
  static SharedState state;
  return state;
}

void PrintErrors(const StrictParse& parse) {
  for (const SyntaxError& error : parse.errors) {
    std::fprintf(stderr, "\n\nSyntax error: parse error\nError Location : %" PRId64 "\n", error.line);
  }
  if (parse.result == ParseResult::kExhausted) std::fprintf(stderr, "%s\n", parse.error.c_str());
}

}  // namespace

MPTracesParser::MPTracesParser() = default;
MPTracesParser::MPTracesParser(const MPTracesParser&) = default;
MPTracesParser::MPTracesParser(MPTracesParser&&) noexcept = default;
MPTracesParser& MPTracesParser::operator=(const MPTracesParser&) = default;
MPTracesParser& MPTracesParser::operator=(MPTracesParser&&) noexcept = default;

MPTracesParser::MPTracesParser(char* file) { SetFile(file); }

void MPTracesParser::SetFile(char* file) {
  State().file.reset(file == nullptr ? nullptr : std::fopen(file, "r"));
}

int MPTracesParser::Parse() {
  SharedState& state = State();
  std::FILE* input = state.file != nullptr ? state.file.get() : stdin;
  StrictParse parse =
      ParseStrictly([input](char* bytes, std::size_t size) { return std::fread(bytes, 1, size, input); });
  PrintErrors(parse);
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
