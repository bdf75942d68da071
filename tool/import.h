#pragma once

/// @file
/// Running an import. The tool does what a host does.

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "kestrin/session/import_session.h"
#include "tool/export_set.h"
#include "tool/import_dialog.h"
#include "tool/strict_traces.h"

namespace kestrin::tool {

/// The result of an import.
struct Imported {
  explicit Imported(ExportSet toImport) : files(std::move(toImport)) {}

  ExportSet files;
  CPC_KESTRIN_GET session;
  std::optional<StrictTraces> strictTraces;  ///< set if the Traces file was read strictly

  /// The model of the Traces file, from the strict reader if it read the file; may be null.
  [[nodiscard]] const CMTraces* Traces() const {
    return strictTraces ? strictTraces->parse.traces.get() : session.GetTraces();
  }
  [[nodiscard]] const FileReport& ReportOf(ImportFile file) const { return session.GetReport().Of(file); }
  /// The files that were read, in the order in which they were.
  [[nodiscard]] std::vector<ImportFile> FilesRead() const;
};

/// With --strict, which readers read the Traces file.
enum class StrictReading {
  kOnly,  ///< only the strict reader
  kAlso,  ///< the strict reader, which keeps source lines, and the session, for its report
};

/// Opens and imports the files of an import, and shows progress in a dialog. If a reader stops early, returns
/// a line that says where and why, and the session does not read the files after that; otherwise returns an
/// empty string. Raises UsageError if a file cannot be opened. What the dialog throws passes through, unless
/// it is a std::exception.
[[nodiscard]] std::string Import(Imported& imported, ImportDialog& dialog,
                                 StrictReading strict = StrictReading::kOnly);

/// The same for a command, with progress on the terminal. Large models then exist until the process ends.
[[nodiscard]] std::string Import(Imported& imported, StrictReading strict = StrictReading::kOnly);

}  // namespace kestrin::tool
