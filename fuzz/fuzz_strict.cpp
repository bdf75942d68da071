#include <algorithm>
#include <fstream>
#include <sstream>

#include "fuzz/agreement.h"
#include "fuzz/subjects.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "support/source_of.h"

namespace kestrin::fuzz {
namespace {

/// Everything that a parse returns, as text.
std::string Described(const StrictParse& parse) {
  std::string text = std::to_string(static_cast<int>(parse.result)) + " " + parse.error + " " +
                     std::to_string(parse.line) + "\n";
  for (const SyntaxError& error : parse.errors) {
    text += std::to_string(error.line) + " " + error.Describe() + "\n";
  }
  return parse.traces == nullptr ? text : text + Dump(*parse.traces);
}

void RequireConsistent(const StrictParse& parse, std::string_view text) {
  Require(parse.result != ParseResult::kExhausted, "a text of this size exhausts no limit");
  Require(parse.result != ParseResult::kAccepted || parse.traces != nullptr, "an accepted file has a model");
  Require(parse.result != ParseResult::kRejected || !parse.errors.empty(), "a rejected file has an error");
  Require(parse.error.empty() == parse.errors.empty(), "the last error has a message");
  Require(parse.line <= std::count(text.begin(), text.end(), '\n'), "no line end is counted twice");
  std::int64_t line = 0;
  for (const SyntaxError& error : parse.errors) {
    Require(error.line >= std::exchange(line, error.line) && line <= parse.line, "errors are in file order");
    Require(error.text.size() <= 255 && error.expected.any(), "an error says what was expected");
  }
}

/// Requires that the readers agree on the text if they have to. Returns whether they have to.
bool AgreesWithLineReader(StrictParse& parse, std::string_view text) {
  if (parse.result != ParseResult::kAccepted || !parse.errors.empty() || !IsPlain(text)) return false;
  TracesSubject lines;
  for (const std::string_view line : LinesOf(text)) {
    const auto outcome = lines.reader.ReadLine(line);
    Require(outcome.GetKind() != LineOutcome::Kind::kSkipped, "no line of a file in plain form is skipped");
  }
  RemoveDifferences(lines.model);
  RemoveDifferences(*parse.traces);
  Require(Dump(lines.model) == Dump(*parse.traces),
          "both readers make the same model of a file in plain form");
  return true;
}

bool Check(std::string_view text) {
  MemoryMeter memory;
  StrictParse whole = ParseStrictly(test::SourceOf(text, text.size()));
  memory.Look();
  memory.RequireInProportion(text.size());
  RequireConsistent(whole, text);
  Require(Described(whole) == Described(ParseStrictly(test::SourceOf(text, 1 + text.size() % 7))),
          "the result does not depend on how the input is divided into blocks");
  return AgreesWithLineReader(whole, text);
}

}  // namespace
}  // namespace kestrin::fuzz

extern "C" int LLVMFuzzerInitialize(int* /*count*/, char*** /*words*/) {
  std::ostringstream board;
  board << std::ifstream(KESTRIN_EXAMPLES "/board/board.traces").rdbuf();
  kestrin::fuzz::Require(kestrin::fuzz::Check(board.str()), "the sample board is a file in plain form");
  return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
  kestrin::fuzz::Check(kestrin::fuzz::TextOf(bytes, size));
  return 0;
}
