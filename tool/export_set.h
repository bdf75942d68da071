#pragma once

/// @file
/// The files to import, as named on the command line.

#include <array>
#include <cstddef>
#include <string>

#include "kestrin/session/import_report.h"

namespace kestrin::tool {

/// How the tool names a file of an export set.
struct FileKind {
  ImportFile file;
  const char* name;
  const char* option;
  const char* ending;
};

/// In the order in which the files are read.
inline constexpr std::array<FileKind, kImportFileCount> kFileKinds{{
    {ImportFile::kTech, "Tech", "--tech", ".tech"},
    {ImportFile::kNeutral, "Neutral", "--neutral", ".neutral"},
    {ImportFile::kGeometry, "Geometry", "--geometry", ".geometry"},
    {ImportFile::kTraces, "Traces", "--traces", ".traces"},
}};

/// The paths of the files to import. The path of a file that is not to be imported is empty.
class ExportSet {
 public:
  [[nodiscard]] const std::string& PathOf(ImportFile file) const {
    return paths_[static_cast<std::size_t>(file)];
  }
  [[nodiscard]] std::string& PathOf(ImportFile file) { return paths_[static_cast<std::size_t>(file)]; }
  [[nodiscard]] bool Has(ImportFile file) const { return !PathOf(file).empty(); }

  /// Whether to read the Traces file with the strict reader.
  [[nodiscard]] bool IsStrict() const { return strict_; }
  [[nodiscard]] bool& Strict() { return strict_; }

  /// Sets each empty path to the file of the folder that has the right ending. Raises UsageError unless the
  /// folder has exactly one such file for each.
  void FindInFolder(const std::string& folder);

  /// Raises UsageError unless there is at least one file and each is a regular file that can be opened. Only
  /// a regular file can be read twice, as an import does to count its lines. Strict reading also requires a
  /// Traces file.
  void CheckReadable() const;

 private:
  std::array<std::string, kImportFileCount> paths_;
  bool strict_ = false;
};

}  // namespace kestrin::tool
