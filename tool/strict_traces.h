#pragma once

/// @file
/// The option --strict: reading the Traces file with the strict reader.

#include <chrono>
#include <cstdint>
#include <string>

#include "kestrin/traces/strict/strict_parser.h"
#include "tool/document_writer.h"
#include "tool/export_set.h"
#include "tool/import_dialog.h"

namespace kestrin::tool {

/// A Traces file that was read strictly.
struct StrictTraces {
  StrictParse parse;
  std::string stopped;  ///< where and why the parser stopped early; empty if the file was accepted
  std::chrono::nanoseconds duration{};
};

/// Reads the Traces file of a set. Raises UsageError if it cannot be opened.
[[nodiscard]] StrictTraces ReadStrictly(const ExportSet& files, bool keepsSourceLines, ImportDialog& dialog);

/// The line number of an error, counted from 1.
[[nodiscard]] inline std::int64_t LineOf(const SyntaxError& error) { return error.line + 1; }

/// Writes how the parse ended: result, error text, number of line ends read.
void Write(DocumentWriter& document, const StrictTraces& traces);

/// How the parse ended: "accepted with 2 syntax errors".
[[nodiscard]] std::string Verdict(const StrictParse& parse);

}  // namespace kestrin::tool
