#include "kestrin/traces/strict/strict_parser.h"

#include <new>
#include <optional>
#include <utility>

#include "kestrin/traces/strict/model_builder.h"
#include "kestrin/traces/strict/scanner.h"
#include "kestrin/traces/strict/traces_grammar.h"

namespace kestrin {
namespace {

std::string ErrorText(const SyntaxError& error) {
  return "Traces File Error: parse error - ErrorLine : " + std::to_string(error.line);
}

void Exhaust(StrictParse& parse, const char* message) {
  parse.result = ParseResult::kExhausted;
  parse.error = message;
}

}  // namespace

StrictParse ParseStrictly(ByteSource source) {
  StrictParse parse;
  ModelBuilder model;
  std::optional<TracesScanner> scanner;
  try {
    scanner.emplace(std::move(source));
    TracesGrammar grammar(*scanner, model, parse.errors);
    parse.result = grammar.parse() == 0 ? ParseResult::kAccepted : ParseResult::kRejected;
    if (!parse.errors.empty()) parse.error = ErrorText(parse.errors.back());
  } catch (const ScannerError& error) {
    Exhaust(parse, error.what());
  } catch (const std::bad_alloc&) {
    Exhaust(parse, "out of dynamic memory in yy_create_buffer()");
  }
  if (scanner) parse.line = scanner->LineEnds();
  parse.traces = model.Take();
  return parse;
}

}  // namespace kestrin
