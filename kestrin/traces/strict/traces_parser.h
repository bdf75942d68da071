#pragma once

/// @file
/// The strict reader as an object: an input that may be parsed more than once.

#include <memory>
#include <utility>

#include "kestrin/traces/strict/byte_source.h"
#include "kestrin/traces/strict/error_listener.h"
#include "kestrin/traces/strict/strict_parser.h"
#include "kestrin/traces/strict/traces_scanner.h"

namespace kestrin {

/// Parses one input. A parse that gives up leaves the rest of it to the next, which goes on after the last
/// token:
///
///     TracesParser parser(source);
///     StrictParse parse = parser.Parse();
///     if (parse.result == ParseResult::kRejected) parse = parser.Parse();
///
/// Once the input has ended, a parse asks the source anew. Once memory, a limit or an exception has ended a
/// parse, what was read ahead is lost.
class TracesParser {
 public:
  explicit TracesParser(ByteSource source) : source_(std::move(source)) {}
  TracesParser(const TracesParser&) = delete;
  TracesParser& operator=(const TracesParser&) = delete;

  /// Counts lines from where it begins. Exceptions of the source pass through.
  [[nodiscard]] StrictParse Parse(const ErrorListener& listener = {});

 private:
  ByteSource source_;
  std::unique_ptr<TracesScanner> scanner_;  // none until a parse needs one
};

}  // namespace kestrin
