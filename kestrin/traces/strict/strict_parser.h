#pragma once

/// @file
/// The strict reader of the Traces file. Unlike the import session, which reads lines in any order, it
/// accepts records only in the order and form of the grammar, and reports each place that breaks it.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "kestrin/base/export.h"
#include "kestrin/records/source_lines.h"
#include "kestrin/traces/strict/byte_source.h"
#include "kestrin/traces/strict/syntax_error.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {

/// How a parse ended.
enum class ParseResult : std::uint8_t {
  kAccepted,   ///< the file was read to its end, perhaps with errors that the parser resumed after
  kRejected,   ///< the parser gave up: it found no place to resume after an error
  kExhausted,  ///< memory or a limit of the parser was exhausted
};

/// The result of a parse.
struct StrictParse {
  std::unique_ptr<CMTraces> traces;  ///< the model as far as it was read; null before the units line
  ParseResult result = ParseResult::kAccepted;  ///< how the parse ended
  std::string error;                            ///< the last error as a message; empty if there is none
  std::int64_t line = 0;                        ///< the number of line ends read
  std::vector<SyntaxError> errors;              ///< all reported syntax errors, in file order
  std::unique_ptr<const SourceLines> lines;     ///< which lines made the records; null if they were not kept
};

/// Parses one file.
///
///     StrictParse parse = ParseStrictly(source);
///     for (const SyntaxError& error : parse.errors) {
///       std::cerr << "line " << error.line + 1 << ": " << error.Describe() << '\n';
///     }
///
/// Keeps the line of each record if asked to; see SourceLines.
///
/// Prints nothing. May be called on several threads at once. Exceptions of the source pass through; if memory
/// is exhausted, the result is kExhausted.
[[nodiscard]] KESTRIN_EXPORT StrictParse ParseStrictly(ByteSource source, bool keepsSourceLines = false);

}  // namespace kestrin
