#pragma once

/// @file
/// Running an import as a host.

#include <optional>
#include <string>

#include "kestrin/session/import_session.h"
#include "tool/export_set.h"
#include "tool/strict_traces.h"

namespace kestrin::tool {

/// What an import made.
struct Imported {
  CPC_KESTRIN_GET session;
  std::optional<StrictTraces> strictTraces;  ///< where the Traces file was to be read strictly

  /// The model of the Traces file, whoever read it; may be null.
  [[nodiscard]] const CMTraces* Traces() const {
    return strictTraces ? strictTraces->parse.traces.get() : session.GetTraces();
  }
};

/// Who reads a Traces file that is to be read strictly.
enum class StrictReading {
  kInstead,  ///< the strict reader alone
  kBeside,   ///< the session too, for its report
};

/// Imports the files, with progress on the terminal. Returns an empty text, or when a reader stopped early
/// one line that says where and why; the session's files after it are not read then. Raises UsageError when a
/// file cannot be opened.
[[nodiscard]] std::string Import(Imported& imported, const ExportSet& files,
                                 StrictReading strict = StrictReading::kInstead);

}  // namespace kestrin::tool
