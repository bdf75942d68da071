#pragma once

/// @file
/// --strict: the Traces file as its grammar has it.

#include <chrono>
#include <cstdint>
#include <string>

#include "kestrin/traces/strict/strict_parser.h"
#include "tool/json_writer.h"

namespace kestrin::tool {

/// A Traces file that was read by its grammar.
struct StrictTraces {
  std::string path;
  StrictParse parse;
  std::string stopped;  ///< where and why the reading stopped early, empty when the file was accepted
  std::chrono::nanoseconds duration{};
};

/// Reads the file. Raises UsageError when it cannot be opened.
[[nodiscard]] StrictTraces ReadStrictly(const std::string& path);

/// The line of an error as people count them.
[[nodiscard]] inline std::int64_t LineOf(const SyntaxError& error) { return error.line + 1; }

/// How the reading ended: result, error text, line ends read.
void WriteJson(JsonWriter& json, const StrictTraces& traces);

/// "accepted with 2 syntax errors"
[[nodiscard]] std::string Verdict(const StrictParse& parse);

}  // namespace kestrin::tool
