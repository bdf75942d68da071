#include <algorithm>
#include <fstream>
#include <sstream>

#include "fuzz/agreement.h"
#include "fuzz/subjects.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "support/source_of.h"

namespace kestrin::fuzz {
namespace {

std::string Told(const StrictParse& parse) {
  std::string told = std::to_string(static_cast<int>(parse.result)) + " " + parse.error + " " +
                     std::to_string(parse.line) + "\n";
  for (const SyntaxError& error : parse.errors) {
    told += std::to_string(error.line) + " " + error.Describe() + "\n";
  }
  return parse.traces == nullptr ? told : told + Dump(*parse.traces);
}

void RequireConsistent(const StrictParse& parse, std::string_view text) {
  Require(parse.result != ParseResult::kExhausted, "a text of this size exhausts nothing");
  Require(parse.result != ParseResult::kAccepted || parse.traces != nullptr, "what is accepted has a model");
  Require(parse.result != ParseResult::kRejected || !parse.errors.empty(), "what is rejected has an error");
  Require(parse.error.empty() == parse.errors.empty(), "the text of the last error is kept");
  Require(parse.line <= std::count(text.begin(), text.end(), '\n'), "no line end is read twice");
  std::int64_t line = 0;
  for (const SyntaxError& error : parse.errors) {
    Require(error.line >= std::exchange(line, error.line) && line <= parse.line, "errors are in file order");
    Require(error.text.size() <= 255 && error.expected.any(), "an error says what was found and expected");
  }
}

/// Whether the readers had to agree, as they then did.
bool AgreesWithLineReader(StrictParse& parse, std::string_view text) {
  if (parse.result != ParseResult::kAccepted || !parse.errors.empty() || !IsPlain(text)) return false;
  TracesSubject lines;
  for (const std::string_view line : LinesOf(text)) {
    const auto outcome = lines.reader.ReadLine(line);
    Require(outcome.GetKind() != LineOutcome::Kind::kSkipped, "no line of a file in good form is skipped");
  }
  RemoveDifferences(lines.model);
  RemoveDifferences(*parse.traces);
  Require(Dump(lines.model) == Dump(*parse.traces), "the readers agree on a file in good form");
  return true;
}

bool Check(std::string_view text) {
  MemoryMeter memory;
  StrictParse whole = ParseStrictly(test::SourceOf(text, text.size()));
  memory.Look();
  memory.RequireInProportion(text.size());
  RequireConsistent(whole, text);
  Require(Told(whole) == Told(ParseStrictly(test::SourceOf(text, 1 + text.size() % 7))),
          "it does not matter how the bytes come");
  return AgreesWithLineReader(whole, text);
}

}  // namespace
}  // namespace kestrin::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*words*/) {
  std::ostringstream board;
  board << std::ifstream(KESTRIN_EXAMPLES "/board/board.traces").rdbuf();
  kestrin::fuzz::Require(kestrin::fuzz::Check(board.str()), "the readers have to agree on the sample board");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  kestrin::fuzz::Check(kestrin::fuzz::TextOf(bytes, size));
  return 0;
}
