#pragma once

/// @file
/// Reading a Traces file by its grammar: what the line reader takes as it comes, this reader takes only in
/// the order and the form that the grammar gives it, and says where a file breaks it.

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "kestrin/base/export.h"
#include "kestrin/traces/strict/byte_source.h"
#include "kestrin/traces/strict/syntax_error.h"
#include "kestrin/traces/traces_model.h"

namespace kestrin {

/// How a parse ended.
enum class ParseResult : std::uint8_t {
  kAccepted,   ///< the file was read to its end, perhaps with errors that the parser resumed behind
  kRejected,   ///< the parser found no place to resume at behind an error
  kExhausted,  ///< memory or a limit of the parser ended the parse
};

/// What a parse leaves.
struct StrictParse {
  std::unique_ptr<CMTraces> traces;  ///< as far as it was read; null when that is not behind the units line
  ParseResult result = ParseResult::kAccepted;  ///< how the parse ended
  std::string error;                ///< the error reported last, as hosts show it; empty without one
  std::int64_t line = 0;            ///< the number of line ends read
  std::vector<SyntaxError> errors;  ///< all errors reported, in file order
};

/// Parses one file. Prints nothing and shares nothing: any number of parses may run at a time. Exceptions of
/// the source pass through.
[[nodiscard]] KESTRIN_EXPORT StrictParse ParseStrictly(ByteSource source);

}  // namespace kestrin
