#pragma once

/// @file
/// The strict reader as an object that can parse its input in several steps.

#include <memory>
#include <utility>

#include "kestrin/traces/strict/byte_source.h"
#include "kestrin/traces/strict/error_listener.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/traces/strict/traces_scanner.h"

namespace kestrin {

/// Parses one input. If a parse gives up, the next one continues with the rest, after the wrong token:
///
///     TracesParser parser(source);
///     StrictParse parse = parser.Parse();
///     if (parse.result == ParseResult::kRejected) parse = parser.Parse();
///
/// After the end of the input, a further parse asks the source again. After a parse that ended with an
/// exception or with kExhausted, what was read ahead is lost.
class TracesParser {
 public:
  explicit TracesParser(ByteSource source) : source_(std::move(source)) {}
  TracesParser(const TracesParser&) = delete;
  TracesParser& operator=(const TracesParser&) = delete;

  /// Parses the input from the current position; lines are counted from there. Calls the listener with each
  /// error. Keeps the line of each record if asked to. Exceptions of the source pass through.
  [[nodiscard]] StrictParse Parse(const ErrorListener& listener = {}, bool keepsSourceLines = false);

 private:
  ByteSource source_;
  std::unique_ptr<TracesScanner> scanner_;  // null before the first parse, and when one was interrupted
};

}  // namespace kestrin
