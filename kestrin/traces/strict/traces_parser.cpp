#include "kestrin/traces/strict/traces_parser.h"

#include <functional>
#include <new>
#include <string>
#include <utility>

#include "kestrin/traces/strict/model_builder.h"
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

ParseResult ParseTokens(TracesScanner& scanner, ModelBuilder& model, const ErrorListener& listener) {
  scanner.StartParse();
  TracesGrammar grammar(scanner, model, listener);
  return grammar.parse() == 0 ? ParseResult::kAccepted : ParseResult::kRejected;
}

}  // namespace

StrictParse TracesParser::Parse(const ErrorListener& listener, bool keepsSourceLines) {
  StrictParse parse;
  std::unique_ptr<SourceLines> lines;
  ModelBuilder model;
  // Moved back at the end, unless an exception left it in an undefined state.
  std::unique_ptr<TracesScanner> scanner = std::move(scanner_);
  const auto keep = [&](const SyntaxError& error) {
    if (listener) listener(error);
    parse.errors.push_back(error);
  };
  try {
    if (keepsSourceLines) model.NoteLines(*(lines = std::make_unique<SourceLines>()));
    if (scanner == nullptr) scanner = std::make_unique<TracesScanner>(std::ref(source_));
    parse.result = ParseTokens(*scanner, model, keep);
    if (!parse.errors.empty()) parse.error = ErrorText(parse.errors.back());
  } catch (const ScannerError& error) {
    Exhaust(parse, error.what());
  } catch (const std::bad_alloc&) {
    Exhaust(parse, "out of dynamic memory in yy_create_buffer()");
  }
  if (scanner != nullptr) parse.line = scanner->LineEnds();
  if (parse.result != ParseResult::kExhausted) scanner_ = std::move(scanner);
  parse.traces = model.Take();
  parse.lines = std::move(lines);
  return parse;
}

}  // namespace kestrin
